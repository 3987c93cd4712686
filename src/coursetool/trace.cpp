#include "coursetool/trace.h"

#include "coursetool/offscreen_page.h"
#include "coursetool/paths.h"
#include "coursetool/source_text.h"
#include "coursetool/tables.h"
#include "coursetool/tool_pictures.h"
#include "coursetool/trace_lines.h"
#include "jet/unicode.h"
#include "platform/file_names.h"
#include "platform/jet_recordset.h"
#include "viewer/bound_record.h"
#include "viewer/page_index.h"
#include "viewer/page_loader.h"

namespace coursetool {

namespace {

void write(OffscreenPage& page, OutputBuffer& out, Report& report) {
    for (const platform::Operation& operation : page.recording().operations()) {
        appendTraceLine(operation, out.text());
        out.lineDone();
    }
    appendTraceEnd(page.state(), out.text());
    if (!out.flush())
        report.fault({"sortie standard"}, "tout n’a pas pu être écrit");
}

std::unique_ptr<platform::Recordset> openCourse(const std::filesystem::path& course,
                                                Report& report) {
    const QString directory = QString::fromStdString(shown(course));
    const auto file = platform::findWithoutCase(directory, QString::fromLatin1(kCourseFile));
    if (!file) {
        report.fault({shown(course)}, "aucun cours ici : Zekx.mdb manque");
        return nullptr;
    }
    auto records = platform::openRecordset(*file, QString::fromLatin1(coursTable().name.data()));
    if (records)
        return *std::move(records);
    report.fault({file->toStdString()}, records.error().sentence);
    return nullptr;
}

} // namespace

void tracePage(const TraceRequest& request, const platform::TextMetrics& metrics, OutputBuffer& out,
               Report& report) {
    const auto records = openCourse(request.course, report);
    if (!records)
        return;
    shell::SharedState state;
    viewer::buildPageIndex(*records, state);

    ToolPictures pictures(request.course, request.drives, report);
    OffscreenPage page(metrics, pictures);
    viewer::BoundRecord bound;
    viewer::PageLoader loader(state, bound, page, page, page.renderer(), page);
    loader.bindTo(*records);
    if (const auto position = viewer::positionByNumber(state, request.page))
        loader.moveTo(*position);
    loader.takeOverOrderIndex();
    loader.showCurrentRecord();

    const QString wanted = QString::number(request.page);
    if (bound.TextID != wanted)
        report.warning({shown(request.course)},
                       "aucune page ne porte le numéro " + wanted.toStdString() +
                           " : voici celle que le programme montre à sa place");
    write(page, out, report);
}

void traceSource(const TraceRequest& request, const platform::TextMetrics& metrics,
                 OutputBuffer& out, Report& report) {
    const auto bytes = readBytes(request.source, report);
    if (!bytes)
        return;
    checkUtf8(*bytes, shown(request.source), report);
    const std::u16string source = jet::toUtf16(*bytes);
    ToolPictures pictures({}, request.drives, report);
    OffscreenPage page(metrics, pictures);
    page.draw(QString::fromUtf16(source.data(), static_cast<qsizetype>(source.size())));
    write(page, out, report);
}

} // namespace coursetool
