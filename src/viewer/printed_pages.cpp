#include "viewer/printed_pages.h"

#include "coursedata/page_index.h"
#include "page/numbers.h"
#include "text/number_text.h"
#include "text/rounding.h"
#include "viewer/page_code.h"

#include <algorithm>

namespace viewer {

namespace {

constexpr int kEditionYear = 2026;

QString footerLine() {
    return QStringLiteral("Orvalente - Physique et chimie, collège et lycée - © KAROPE %1")
        .arg(kEditionYear);
}

/// The mention of a page of a run, counted from 1.
QString pageMention(int count) {
    return QStringLiteral(" - page") + QString::fromStdU16String(text::numberText(count));
}

std::int32_t pageNumber(const QString& field) {
    return text::toInt32(page::leadingNumber(field)).value_or(0);
}

int countOf(const coursedata::BoundRecord& record) {
    const std::int64_t pages =
        std::int64_t{pageNumber(record.finimp)} - pageNumber(record.debimp) + 1;
    return static_cast<int>(std::clamp<std::int64_t>(pages, 0, kMaxPrintedPages));
}

/// Number of the first record of the table. The record itself stays as it is.
int firstNumber(const coursedata::BoundRecord& record) {
    coursedata::BoundRecord other = record;
    other.moveTo(0);
    const int number = pageNumber(other.TextID);
    other.moveTo(record.position()); // of the table, which they share
    return number;
}

} // namespace

PrintedPages::PrintedPages(const Parts& parts, PrintPart part)
    : parts_(parts), part_(part),
      first_(pageNumber(part == PrintPart::Chapter ? parts.record.debimp : parts.record.TextID)),
      count_(part == PrintPart::Chapter ? countOf(parts.record) : 1),
      numberAtStart_(firstNumber(parts.record)) {}

/// False when the text of the page cannot be read.
bool PrintedPages::makeCurrent(std::int64_t number) {
    // Outside the table the record before stays current and is printed again, meant so.
    const auto position =
        coursedata::positionInPrint(parts_.state, static_cast<std::int32_t>(number));
    coursedata::BoundRecord& record = parts_.record;
    // What else of it is damaged does not show on paper.
    return !position || record.moveTo(*position) ||
           (record.position() == *position && record.records()->field(QStringLiteral("fpc")));
}

PaperPage PrintedPages::draw(int index) {
    if (part_ == PrintPart::Chapter && !makeCurrent(first_ + index))
        return unreadPage(index);
    markup::DrawnPage drawn =
        markup::drawPage({parts_.record.code, markup::DrawnAs::Paper}, parts_.tools);
    // The footer is in the letters that the page ended with, meant so.
    return {std::move(drawn.recording), std::move(drawn.printedLinks),
            footer(index, drawn.end.font), parts_.record.Textitre,
            pageNumber(parts_.record.TextID)};
}

/// In letters of its own: what the pages before have left is the next page's.
PaperPage PrintedPages::unreadPage(int index) const {
    markup::DrawingState state;
    const QString sentence = QStringLiteral("Cette page n’a pas pu être lue.¶\r\n");
    markup::DrawnPage drawn = markup::drawPage(
        {sentence, markup::DrawnAs::Paper}, {state, parts_.tools.pictures, parts_.tools.metrics});
    return {std::move(drawn.recording),       {},
            footer(index, drawn.end.font),    QStringLiteral("Page illisible"),
            static_cast<int>(first_ + index), false};
}

Footer PrintedPages::footer(int index, const page::Font& font) const {
    return {footerLine() + (count_ == 1 ? QString() : pageMention(index + 1)), font};
}

std::optional<int> PrintedPages::numberOfTag(const QString& tag) const {
    if (codePrefix(tag) != QStringLiteral("PAG"))
        return std::nullopt;
    const int number = text::toInt32(codeArgument(tag)).value_or(0);
    const bool isOfTheRun = number >= first_ && number - first_ < count_;
    const auto position = coursedata::positionInPrint(parts_.state, number);
    const bool isThere = position && (*position > 0 || number == numberAtStart_);
    return isOfTheRun && (isThere || part_ == PrintPart::ThisPage) ? std::optional(number)
                                                                   : std::nullopt;
}

} // namespace viewer
