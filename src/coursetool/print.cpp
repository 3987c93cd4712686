#include "coursetool/print.h"

#include "coursedata/bound_record.h"
#include "coursedata/page_index.h"
#include "coursetool/course_records.h"
#include "coursetool/paths.h"
#include "markup/draw_page.h"
#include "output/pdf/pdf_printer.h"
#include "viewer/page_printer.h"

namespace coursetool {

void print(const PrintRequest& request, const page::FontBook& fonts,
           markup::PictureSource& pictures, Report& report) {
    const auto course = openRecords(request.course, kCourseFile, coursTable(), report);
    if (!course)
        return;
    shell::SharedState state;
    coursedata::buildPageIndex(*course->records, state);
    coursedata::BoundRecord record;
    record.bindTo(*course->records);
    if (const auto position = coursedata::positionOfCode(state, request.page))
        record.moveTo(*position);
    if (record.TextID != QString::number(request.page)) {
        report.fault({course->file},
                     "aucune page ne porte le numéro " + std::to_string(request.page));
        return;
    }
    // In the shell the page is on the screen when it is printed: what that leaves of fractions and
    // rows goes on on paper.
    markup::DrawingState drawing;
    const markup::DrawingTools tools{drawing, pictures, fonts};
    markup::drawPage({record.code, markup::DrawnAs::CoursePage, record.Textitre}, tools);

    output::PdfPrinter printer(QString::fromStdString(shown(request.output)), fonts);
    viewer::PagePrinter pages({state, record, tools, printer, {}});
    const viewer::PrintRun run = pages.imprimepage();
    if (run.wanted == 0)
        report.fault({course->file}, "la page " + std::to_string(request.page) +
                                         " n’a rien à imprimer : debutimp dépasse finimp");
    else if (!printer.error().isEmpty())
        report.failure({shown(request.output)}, printer.error().toStdString());
    else if (run.unread > 0)
        report.fault({course->file},
                     "des pages n’ont pas pu être lues (" + std::to_string(run.unread) + " sur " +
                         std::to_string(run.wanted) + ") : leurs feuilles le disent");
}

} // namespace coursetool
