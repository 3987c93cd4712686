#include "coursetool/print.h"

#include "coursedata/bound_record.h"
#include "coursedata/page_index.h"
#include "coursetool/course_records.h"
#include "coursetool/offscreen_page.h"
#include "coursetool/paths.h"
#include "output/pdf/pdf_printer.h"
#include "viewer/page_loader.h"
#include "viewer/page_printer.h"

namespace coursetool {

void print(const PrintRequest& request, const page::FontBook& fonts, markup::PictureShelf& pictures,
           Report& report) {
    const auto course = openRecords(request.course, kCourseFile, coursTable(), report);
    if (!course)
        return;
    shell::SharedState state;
    coursedata::buildPageIndex(*course->records, state);
    OffscreenPage page(fonts, pictures);
    coursedata::BoundRecord bound;
    viewer::PageLoader loader(state, bound, page, page, page.renderer(), page);
    loader.bindTo(*course->records);
    if (const auto position = coursedata::positionOfCode(state, request.page))
        loader.moveTo(*position);
    if (bound.TextID != QString::number(request.page)) {
        report.fault({course->file},
                     "aucune page ne porte le numéro " + std::to_string(request.page));
        return;
    }
    loader.showCurrentRecord();

    output::PdfPrinter printer(QString::fromStdString(shown(request.output)), fonts);
    viewer::PagePrinter pages(
        {state, bound, loader, page, page.state(), page, page, pictures, fonts, printer, {}});
    if (pages.imprimepage().wanted == 0)
        report.fault({course->file}, "la page " + std::to_string(request.page) +
                                         " n’a rien à imprimer : debutimp dépasse finimp");
    else if (!printer.error().isEmpty())
        report.failure({shown(request.output)}, printer.error().toStdString());
}

} // namespace coursetool
