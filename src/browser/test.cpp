// A test as JavaScript takes it: each call gives what it did to the page, as events.

#include "browser/exchange.h"
#include "browser/test_parts.h"
#include "exercises/answer_check.h"
#include "exercises/progress_strip.h"
#include "exercises/score.h"
#include "exercises/test_session.h"
#include "text/rounding.h"

#include <memory>

namespace {

using browser::decimal;
using browser::kFieldEnd;
using browser::kRecordEnd;

struct NoReturnButton : exercises::CourseWindow {
    void hideReturnToTest() override {}
};

/// All that a running test consists of. One at a time, as in the shell.
struct Running {
    browser::SiteRecords records;
    browser::Events events;
    browser::GivenAnswer given;
    browser::SiteControls controls{events, given};
    browser::SiteView view{events, records, controls};
    NoReturnButton course;
    exercises::TestState state;
    std::int16_t chapter = 0;
    std::int16_t returnPage = 0;
    exercises::TestSession session{{chapter, returnPage}, state, records, view, controls, course};
};

std::unique_ptr<Running> running;

std::size_t giveEvents() {
    return browser::give(running ? running->events.take() : std::u16string());
}

template <class Do>
std::size_t events(const Do& step) {
    if (running)
        step(running->session);
    return giveEvents();
}

/// Takes up where state() was written; what does not fit is left out.
void takeUp(std::u16string_view written, exercises::TestState& state) {
    browser::Fields records(written, kRecordEnd);
    state.CurrentQuestion = text::toInt16(browser::Fields(records.next()).nextNumber()).value_or(0);
    while (!records.isAtEnd()) {
        browser::Fields fields(records.next());
        if (fields.isAtEnd())
            continue;
        const int question = fields.nextNumber();
        const int worth = fields.nextNumber();
        if (question == 0 || (worth != 1 && worth != -1))
            continue;
        state.QuestionState.store(question, static_cast<std::int16_t>(worth));
        state.GivenAnswers.store(question, std::u16string(fields.next()));
    }
}

} // namespace

/// Whether a typed answer is right: the solution, a field end, the answer.
ORVALENTE_EXPORTED(judge) int judge(std::size_t units) {
    browser::Fields fields(browser::takenText(units));
    const std::u16string_view solution = fields.next();
    return exercises::castexte(solution, fields.next());
}

/// Opens a test: what SiteRecords::read() takes, then, behind two record ends, what testState()
/// gave when it was left, or nothing. Gives events, as all that follow.
ORVALENTE_EXPORTED(testOpen) std::size_t testOpen(std::size_t units) {
    const std::u16string_view taken = browser::takenText(units);
    const std::u16string both(2, kRecordEnd);
    const std::size_t end = taken.find(both);
    running = std::make_unique<Running>();
    running->records.read(taken.substr(0, end));
    if (end != taken.npos)
        takeUp(taken.substr(end + both.size()), running->state);
    running->chapter = running->records.chapter();
    running->session.load();
    running->session.activate();
    return giveEvents();
}

ORVALENTE_EXPORTED(testPrevious) std::size_t testPrevious() {
    return events([](exercises::TestSession& session) { session.previous(); });
}

ORVALENTE_EXPORTED(testNext) std::size_t testNext() {
    return events([](exercises::TestSession& session) { session.next(); });
}

ORVALENTE_EXPORTED(testChoose) std::size_t testChoose(int question) {
    return events([&](exercises::TestSession& session) {
        session.chooseQuestion(text::toInt16(question).value_or(0));
    });
}

/// Validates what is ticked (bit i for control i) and typed.
ORVALENTE_EXPORTED(testValidate)
std::size_t testValidate(unsigned check, unsigned option, std::size_t units) {
    if (running)
        running->given = {check, option, std::u16string(browser::takenText(units))};
    return events([](exercises::TestSession& session) { session.validate(); });
}

ORVALENTE_EXPORTED(testScore) std::size_t testScore() {
    return events([](exercises::TestSession& session) { session.showScore(); });
}

ORVALENTE_EXPORTED(testRetake) std::size_t testRetake() {
    return events([](exercises::TestSession& session) { session.retakeTest(); });
}

ORVALENTE_EXPORTED(testRetakeWrong) std::size_t testRetakeWrong() {
    return events([](exercises::TestSession& session) { session.retakeWrong(); });
}

/// Ends the test; `sure` is what the person answers to the question that may be asked. The event
/// "closed" says that it has ended.
ORVALENTE_EXPORTED(testClose) std::size_t testClose(int sure) {
    if (!running)
        return browser::give({});
    running->view.setAnswer(sure != 0);
    if (running->session.close())
        running->events.add(u"closed");
    return giveEvents();
}

/// What keeps a test: the current question, then a record for each answered one with its number,
/// 1 or -1, and the answer given.
ORVALENTE_EXPORTED(testState) std::size_t testState() {
    std::u16string all;
    if (running) {
        const exercises::TestState& state = running->state;
        all = decimal(state.CurrentQuestion) + kRecordEnd;
        for (int question = 1; question <= state.QuestionCount; ++question)
            if (exercises::isAnswered(state, question))
                all += decimal(question) + kFieldEnd +
                       decimal(state.QuestionState.valueOr(question, 0)) + kFieldEnd +
                       state.GivenAnswers.valueOr(question, {}) + kRecordEnd;
    }
    return browser::give(all);
}

/// Right answers, answered questions, questions, and right answers in a hundred given.
ORVALENTE_EXPORTED(testCounts) std::size_t testCounts() {
    if (!running)
        return browser::give({});
    const exercises::Counts counts = exercises::counts(running->state);
    return browser::give(decimal(counts.right) + kFieldEnd + decimal(counts.answered) + kFieldEnd +
                         decimal(running->state.QuestionCount) + kFieldEnd +
                         decimal(exercises::percentage(counts).value_or(0)));
}

/// A record for each question answered wrong: its number, type, the answer given, the right one.
ORVALENTE_EXPORTED(testWrong) std::size_t testWrong() {
    std::u16string all;
    if (running)
        for (const exercises::WrongAnswer& wrong : running->session.wrongAnswers())
            all += decimal(wrong.question) + kFieldEnd + decimal(wrong.type) + kFieldEnd +
                   wrong.given + kFieldEnd + wrong.solution + kRecordEnd;
    return browser::give(all);
}

/// For the strip of a test of `count` questions, a record each: caption, name for screen readers
/// and colours of the band (light, frame, middle, caption).
ORVALENTE_EXPORTED(testStrip) std::size_t testStrip() {
    std::u16string all;
    const int count = running ? running->state.QuestionCount : 0;
    for (int question = 1; question <= count; ++question) {
        const int state = running->state.QuestionState.valueOr(question, 0);
        const exercises::BandInks inks = exercises::bandInks(state);
        all += exercises::bandCaption(question) + kFieldEnd + exercises::bandName(question, state) +
               kFieldEnd + decimal(state);
        for (const markup::Rgb ink : {inks.light, inks.frame, inks.middle, inks.caption})
            all += kFieldEnd + decimal(static_cast<int>(ink & 0xFFFFFF));
        all += kRecordEnd;
    }
    return browser::give(all);
}
