#pragma once

#include "look/outcome_line.h"

#include <QTimer>
#include <QWidget>

class QLabel;

namespace viewer {

/// The frame `Framebase` below the page: the buttons `avantcours` and `suite` to the neighbours in
/// the chapter, and between them the words "Dans ce chapitre". A line about something that could
/// not be done, or has been, takes the place of the words for a while.
class ChapterBar : public QWidget {
public:
    explicit ChapterBar(QWidget* parent);

    void setButtonsVisible(bool previous, bool next);

    /// Shows the line until the next page, or until it had time to be read; one with a button stays
    /// three times as long.
    void showLine(look::OutcomeLine::Kind kind, const QString& line,
                  const look::LineAction& action = {});
    void clearLine();

private:
    void showWords();

    QWidget* avantcours_;
    QWidget* suite_;
    QLabel* words_;
    look::OutcomeLine* line_;
    QTimer untilRead_;
};

} // namespace viewer
