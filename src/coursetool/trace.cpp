#include "coursetool/trace.h"

#include "coursetool/course_pages.h"
#include "coursetool/course_questions.h"
#include "coursetool/offscreen_page.h"
#include "coursetool/offscreen_question.h"
#include "coursetool/page_source.h"
#include "coursetool/paths.h"
#include "coursetool/trace_lines.h"

namespace coursetool {

namespace {

class Tracer {
public:
    Tracer(const TraceRequest& request, const page::TextMetrics& metrics,
           markup::PictureShelf& pictures, OutputBuffer& out, Report& report)
        : request_(request), metrics_(metrics), pictures_(pictures), out_(out), report_(report) {}

    void tracePage(int number) {
        auto pages = CoursePages::open(request_.course, report_);
        if (!pages)
            return;
        OffscreenPage page(metrics_, pictures_);
        const coursedata::BoundRecord shown = pages->draw(pages->positionShown(number), page);
        if (shown.TextID != QString::number(number))
            report_.warning({coursetool::shown(request_.course)},
                            "aucune page ne porte le numéro " + std::to_string(number) +
                                " : voici celle que le programme montre à sa place");
        reportLost(page, pages->place(pages->positionShown(number)), report_);
        write(page.recording(), page.state());
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
        OffscreenQuestion question(metrics_, pictures_);
        const int drawn = position.value_or(questions->count() - 1);
        questions->draw(drawn, question);
        reportUnended(question.code().text(), questions->place(drawn), report_);
        write(question.recording(), question.state());
    }

    void traceSource() {
        const auto source = readPageSource(request_.source, report_);
        if (!source)
            return;
        OffscreenPage page(metrics_, pictures_);
        page.draw(*source);
        reportLost(page, {coursetool::shown(request_.source)}, report_);
        write(page.recording(), page.state());
    }

private:
    void write(const page::Recording& recording, const markup::DrawingState& state) {
        for (const page::Operation& operation : recording.operations()) {
            appendTraceLine(operation, out_.text());
            out_.lineDone();
        }
        appendTraceEnd(state, out_.text());
        if (!out_.flush())
            report_.outputFailure(out_.error());
    }

    const TraceRequest& request_;
    const page::TextMetrics& metrics_;
    markup::PictureShelf& pictures_;
    OutputBuffer& out_;
    Report& report_;
};

} // namespace

void trace(const TraceRequest& request, const page::TextMetrics& metrics,
           markup::PictureShelf& pictures, OutputBuffer& out, Report& report) {
    Tracer tracer(request, metrics, pictures, out, report);
    if (!request.source.empty())
        tracer.traceSource();
    else if (request.question)
        tracer.traceQuestion(*request.question);
    else
        tracer.tracePage(request.page.value_or(0));
}

} // namespace coursetool
