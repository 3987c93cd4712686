#pragma once

#include "exercises/test_summary.h"
#include "markup/draw_page.h"

#include <QString>

#include <vector>

namespace exercises {

/// What the summary of a test says of a question answered wrong; plain texts on one line each.
struct SummaryEntry {
    int question = 0;
    QString asked;    ///< the first line of the question; empty when it has no words
    QString given;    ///< words of what was chosen or typed; empty for nothing
    QString expected; ///< words of the right choices, or the word to type; empty for none
    QString page;     ///< tag of the comment's link to a page of the course; empty for none
    QString pageCaption;
};

/// Finds the words of an answer by drawing its question unseen.
SummaryEntry summaryEntry(const WrongAnswer& answer, const markup::DrawingTools& tools);

/// The summary as the rich text of a QTextBrowser, every word of the course escaped. Its links are
/// "question:N" and "page:TAG"; its pictures "mark:right" and "mark:wrong".
QString summaryHtml(const std::vector<SummaryEntry>& wrong, const Counts& counts);

} // namespace exercises
