#pragma once

#include "coursedata/page_index.h"
#include "markup/page_bench.h"
#include "support/fake_message_boxes.h"
#include "viewer/action_dispatcher.h"
#include "viewer/course.h"
#include "viewer/fakes.h"
#include "viewer/main_commands.h"
#include "viewer/page_loader.h"

namespace test_support {

/// A main window of which only the calls are left, a line each, and what they leave behind.
class LoggingView : public viewer::PageView {
public:
    explicit LoggingView(QStringList& calls) : log(calls) {}

    void setPageVisible(bool on) override {
        note(on ? QStringLiteral("show page") : QStringLiteral("hide page"));
    }
    void resetLinks() override { note(QStringLiteral("free links")); }
    void hideScrollBarAndVideoFrame() override { note(QStringLiteral("hide bar")); }
    void clearPictures() override { note(QStringLiteral("clear pictures")); }
    void setCaption(const QString& text) override { note(QStringLiteral("caption ") + text); }
    void setTitle(const QString& text) override { note(QStringLiteral("title ") + text); }
    void showVideoFrame() override { note(QStringLiteral("video frame")); }
    void setBackEnabled(bool on) override {
        back = on;
        note(QStringLiteral("back ") + QString::number(on));
    }
    void setForwardEnabled(bool on) override {
        forward = on;
        note(QStringLiteral("forward ") + QString::number(on));
    }
    void fitPage() override { note(QStringLiteral("fit page")); }
    int scrolled() const override { return 0; }
    void scrollTo(int) override {}
    void setChapterButtons(bool previous, bool next) override {
        note(QStringLiteral("chapter %1%2").arg(previous).arg(next));
    }
    void setPrintable(bool on) override {
        note(QStringLiteral("printable ") + QString::number(on));
    }
    void setSummary(const QString& code, const QString& caption) override {
        summary = code + u' ' + caption;
        note(QStringLiteral("summary ") + summary);
    }
    void setReturnToTestVisible(bool on) override { returnToTest = on; }
    void tellUnreadablePage() override { note(QStringLiteral("page unread")); }
    void markWords(const viewer::FoundWords& found) override {
        for (const QString& word : found.words)
            note(QStringLiteral("mark ") + word);
    }
    void showHourglass() override { note(QStringLiteral("hourglass")); }
    void restorePointer() override { note(QStringLiteral("normal pointer")); }

    QStringList& log;
    bool back = false;
    bool forward = false;
    bool returnToTest = false;
    QString summary;

private:
    void note(const QString& call) { log.append(call); }
};

/// Course, dispatcher and commands without a window.
class LogicBench {
public:
    explicit LogicBench(QList<test_support::MemoryRecordset::Record> course)
        : cours(std::move(course)) {
        bound.bindTo(cours);
        coursedata::buildPageIndex(cours, state);
    }

    /// Number of the page that is shown.
    QString shown() const { return bound.TextID; }

    /// Fixed numbers in the history, up to the position.
    QList<int> history() const {
        QList<int> visited;
        for (int slot = 1; slot <= state.HistoryPos; ++slot)
            visited.append(state.HistoryPages.valueOr(slot, -1));
        return visited;
    }

    test_support::MemoryRecordset cours;
    FakeCollaborators collaborators;
    test_support::FakeMessageBoxes messageBoxes;
    LoggingView view{collaborators.log};
    PageBench drawing;
    shell::SharedState state;
    coursedata::BoundRecord bound;
    markup::DrawnPage& drawn = drawing.page;
    viewer::PageLoader pages{state, bound,
                             view,  {drawing.state, drawing.pictures, drawing.metrics, &drawing},
                             drawn, collaborators.video};
    viewer::ActionDispatcher actions{
        state, pages, view, collaborators.modules, collaborators.exercise, collaborators.orderForm};
    viewer::MainCommands commands{state, actions, view, collaborators.all(), messageBoxes};
};

} // namespace test_support
