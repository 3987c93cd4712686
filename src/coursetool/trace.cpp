#include "coursetool/trace.h"

#include "coursetool/course_questions.h"
#include "coursetool/course_sheets.h"
#include "coursetool/lost_text.h"
#include "coursetool/page_source.h"
#include "coursetool/paths.h"
#include "coursetool/trace_lines.h"
#include "markup/draw_page.h"

namespace coursetool {

namespace {

class Tracer {
public:
    Tracer(const TraceRequest& request, const page::TextMetrics& metrics,
           markup::PictureSource& pictures, OutputBuffer& out, Report& report)
        : request_(request), metrics_(metrics), pictures_(pictures), out_(out), report_(report) {}

    void tracePage(int number) {
        auto pages = CourseSheets::open(request_.course, report_);
        if (!pages)
            return;
        const int position = pages->positionShown(number);
        const coursedata::BoundRecord record = pages->record(position);
        if (record.TextID != QString::number(number))
            report_.warning({coursetool::shown(request_.course)},
                            "aucune page ne porte le numéro " + std::to_string(number) +
                                " : voici celle que le programme montre à sa place");
        write({record.code, markup::DrawnAs::CoursePage, record.Textitre}, pages->place(position));
    }

    void traceQuestion(int reference) {
        auto questions = CourseQuestions::open(request_.course, report_);
        if (!questions)
            return;
        const auto position = questions->position(reference);
        if (!position)
            report_.warning({questions->file()},
                            "aucune question ne porte la référence " + std::to_string(reference) +
                                " : voici celle que le programme montre à sa place");
        const int shown = position.value_or(questions->count() - 1);
        write({questions->source(shown), markup::DrawnAs::Question}, questions->place(shown));
    }

    void traceSource() {
        if (const auto source = readPageSource(request_.source, request_.compiler, report_))
            write(source->text, {coursetool::shown(request_.source), {}, source->fileLines});
    }

private:
    void write(const markup::PageText& text, const SourcePlace& place) {
        markup::DrawingState state;
        const markup::DrawnPage page = markup::drawPage(text, {state, pictures_, metrics_});
        reportLost(text, page, metrics_, place, report_);
        for (const page::Operation& operation : page.recording.operations()) {
            appendTraceLine(operation, out_.text());
            out_.lineDone();
        }
        appendTraceEnd(page, state, out_.text());
        if (!out_.flush())
            report_.outputFailure(out_.error());
    }

    const TraceRequest& request_;
    const page::TextMetrics& metrics_;
    markup::PictureSource& pictures_;
    OutputBuffer& out_;
    Report& report_;
};

} // namespace

void trace(const TraceRequest& request, const page::TextMetrics& metrics,
           markup::PictureSource& pictures, OutputBuffer& out, Report& report) {
    Tracer tracer(request, metrics, pictures, out, report);
    if (!request.source.empty())
        tracer.traceSource();
    else if (request.question)
        tracer.traceQuestion(*request.question);
    else
        tracer.tracePage(request.page.value_or(0));
}

} // namespace coursetool
