#pragma once

#include "coursetool/tables.h"
#include "exercises/database_records.h"
#include "exercises/test_session.h"
#include "jet/database_file.h"
#include "shell/shared_state.h"
#include "text/utf8.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <optional>

namespace exercises::test {

/// The window without a window: it keeps what it is told, and its drawing of a question shows a
/// control for each "##EXOCK", "##EXOOP" and "##EXOTX".
class FakeWindow : public TestView, public AnswerControls, public CourseWindow {
public:
    struct Choice {
        bool visible = false;
        bool selected = false;
        bool enabled = true;
        std::optional<Mark> mark;
    };

    Choice& at(ChoiceArray array, int index) const { return choices[{array, index}]; }
    Choice& check(int index) { return at(ChoiceArray::Check1, index); }
    Choice& option(int index) { return at(ChoiceArray::Option1, index); }

    void setTitle(const std::u16string& text) override { title = text; }
    void setCaption(const std::u16string& text) override { caption = text; }
    void setVerdict(const std::optional<Verdict>& now) override { verdict = now; }
    void setPreviousVisible(bool visible) override { previous = visible; }
    void setNextVisible(bool visible) override { next = visible; }
    void setValidateVisible(bool visible) override { validate = visible; }
    void setScoreVisible(bool visible) override { score = visible; }
    void placeMarker(int question, int count) override { marker = {question, count}; }
    void setMarkerVisible(bool visible) override { markerVisible = visible; }
    void setFace(int level) override { face = level; }
    void offerSummary(bool offered) override { summaryOffered = offered; }
    void showSummary() override { ++summaries; }
    void repaintStrip() override { ++stripPaintings; }
    void focusStrip() override { stripHasFocus = true; }
    void hideReturnToTest() override { returnToTest = false; }

    void misanet() override {
        choices = {};
        typed.clear();
        typedEnabled = true;
        typedMark.reset();
        source = u"(empty)";
    }

    void drawQuestion(const std::u16string& text) override {
        source = text;
        const auto shown = QString::fromStdU16String(text);
        for (int i = 0; i < kChoices; ++i) {
            check(i).visible = i < shown.count(QStringLiteral("##EXOCK"));
            option(i).visible = i < shown.count(QStringLiteral("##EXOOP"));
        }
    }

    void showRightAnswer() override {
        EXPECT_FALSE(markerVisible);
        ++popups;
        if (duringPopup)
            duringPopup();
    }

    void tell(const Message& message) override { messages.push_back(message); }
    bool ask(const Message& question) override {
        messages.push_back(question);
        EXPECT_FALSE(answers.empty()) << "unexpected question";
        const bool answer = !answers.empty() && answers.front();
        if (!answers.empty())
            answers.pop_front();
        return answer;
    }

    bool isVisible(ChoiceArray array, int i) const override { return at(array, i).visible; }
    bool isSelected(ChoiceArray array, int i) const override { return at(array, i).selected; }
    void setSelected(ChoiceArray array, int i, bool selected) override {
        at(array, i).selected = selected;
    }
    void disable(ChoiceArray array, int i) override { at(array, i).enabled = false; }
    void paintMark(ChoiceArray array, int i, Mark mark) override { at(array, i).mark = mark; }
    std::u16string typedText() const override { return typed; }
    void setTypedText(const std::u16string& text) override { typed = text; }
    void disableTypedText() override { typedEnabled = false; }
    void markTypedText(Mark mark) override { typedMark = mark; }

    /// The marks of an array from the first control: "+" in the solution, "-" not, " " none.
    std::u16string marks(ChoiceArray array) const {
        std::u16string all;
        for (int i = 0; i < kChoices; ++i) {
            const auto mark = at(array, i).mark;
            all += !mark ? u' ' : *mark == Mark::InSolution ? u'+' : u'-';
        }
        return all;
    }

    mutable std::map<std::pair<ChoiceArray, int>, Choice> choices;
    std::u16string title, caption, source, typed;
    std::optional<Verdict> verdict;
    std::optional<Mark> typedMark;
    std::vector<Message> messages;
    std::deque<bool> answers; ///< to the questions, in turn
    std::pair<int, int> marker;
    bool previous = false, next = false, validate = false, score = true;
    bool markerVisible = true, typedEnabled = true;
    bool stripHasFocus = false, returnToTest = true;
    bool summaryOffered = false;
    int summaries = 0;
    int face = 0, stripPaintings = 0, popups = 0;
    std::function<void()> duringPopup;
};

using Rows = std::vector<std::vector<jet::Value>>;

/// A record of "DESCRIPTION" and one of "Contenu".
inline std::vector<jet::Value> description(int chapter, const char16_t* title, jet::Value count) {
    return {jet::Value(std::int16_t(chapter)), jet::Value(title), std::move(count)};
}
inline jet::Value number(int value) {
    return jet::Value(std::int16_t(value));
}
inline std::vector<jet::Value> question(int reference, int type, const char16_t* solution,
                                        const char16_t* text, const char16_t* comment) {
    return {jet::Value(std::int32_t(reference)), number(type), jet::Value(solution),
            jet::Value(text), jet::Value(comment)};
}

/// A course with a real exercise database, and the test's window over it.
class ExerciseCase : public testing::Test {
protected:
    ExerciseCase() { shared.PendingExerciseChapter = 3; }

    void write(const Rows& descriptions, const Rows& questions) {
        records.read({});
        auto file = jet::createDatabase(folder.filePath("QEKX.mdb").toStdString());
        ASSERT_TRUE(file) << file.error().sentence;
        fill(*file, coursetool::descriptionTable(), descriptions);
        fill(*file, coursetool::contenuTable(), questions);
        ASSERT_TRUE(file->finish());
    }

    /// A test of chapter 3 with `count` questions, each with one box that is to be ticked.
    void writeBoxes(int count) {
        Rows questions;
        for (int i = 1; i <= qMin(count, 150); ++i)
            questions.push_back(question(300 + i, 1, u"10000", u"##EXOCK\r\n", u"Non\r\n"));
        write({description(3, u"Cases", number(count))}, questions);
    }

    /// Opens the window, as a page does with the code of a test.
    void open() {
        auto tables = coursedata::openExerciseTables(folder.path());
        EXPECT_EQ(tables.failures, QStringList());
        records.read(std::move(tables));
        session.emplace(SharedWithCourse{shared.PendingExerciseChapter, shared.ExerciseReturnPage},
                        state, records, window, window, window);
        session->load();
        session->activate();
    }

    /// Answers the current question of writeBoxes().
    void answer(bool right) {
        window.check(0).selected = right;
        session->validate();
    }

    int verdict(int question) const { return state.QuestionState.valueOr(question, 0); }
    std::u16string given(int question) const { return state.GivenAnswers.valueOr(question, {}); }

    QTemporaryDir folder;
    DatabaseRecords records;
    shell::SharedState shared;
    TestState state;
    FakeWindow window;
    std::optional<TestSession> session;

private:
    static void fill(jet::DatabaseWriter& file, const coursetool::TableRule& rule,
                     const Rows& rows) {
        auto table = file.addTable(text::toUtf16(rule.name), coursetool::columnsOf(rule));
        ASSERT_TRUE(table) << table.error().sentence;
        for (const auto& row : rows) {
            const auto done = table->append(row);
            ASSERT_TRUE(done) << done.error().sentence;
        }
    }
};

} // namespace exercises::test
