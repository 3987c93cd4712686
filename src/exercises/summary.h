#pragma once

#include "look/reading_text.h"

#include <QWidget>

#include <functional>

namespace look {
class Button;
}

namespace exercises {

/// The summary at the end of a test, in the place of the question: what was wrong, what would have
/// been right, and the ways on from there.
class Summary : public QWidget {
public:
    struct Ways {
        std::function<void(int)> question;        ///< to a question's number
        std::function<void(const QString&)> page; ///< to a page of the course, by a link's tag
        std::function<void()> wholeTest;          ///< the test once more
        std::function<void()> wrongAnswers;       ///< the wrong questions once more
    };

    explicit Summary(QWidget* parent);

    void onWay(Ways ways) { ways_ = std::move(ways); }
    /// Shows what summaryHtml() has made, from its top; `anyWrong` offers the wrong questions.
    void show(const QString& html, bool anyWrong);
    /// Gives the keyboard to the text.
    void takeFocus();
    QTextBrowser& text() const { return *text_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void follow(const QUrl& link);

    look::ReadingText* text_;
    look::Button* wholeTest_;
    look::Button* wrongAnswers_;
    Ways ways_;
};

} // namespace exercises
