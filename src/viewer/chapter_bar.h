#pragma once

#include "look/icon.h"

#include <QTimer>
#include <QWidget>

class QLabel;

namespace viewer {

/// The frame `Framebase` below the page: the buttons `avantcours` and `suite` to the neighbours in
/// the chapter, and between them the words "Dans ce chapitre". A line about something that could
/// not be done takes the place of the words for a while.
class ChapterBar : public QWidget {
public:
    explicit ChapterBar(QWidget* parent);

    void setButtonsVisible(bool previous, bool next);

    /// Shows `line` until the next page, or until it had time to be read.
    void showStatus(const QString& line);
    void clearStatus();
    const QString& status() const { return status_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showWords();

    QWidget* avantcours_;
    QWidget* suite_;
    QLabel* words_;
    QString status_;
    QTimer untilRead_;
    look::Icon sign_{QStringLiteral("warning")};
};

} // namespace viewer
