#include "authoring/writer.h"

#include <algorithm>

namespace authoring {

namespace {

constexpr char16_t kParagraphEnd[] = u"\u00B6";
constexpr int kHighestNumber = 999;
constexpr int kLowestMove = -99; // three characters, the sign among them

QString twoDigits(int number) {
    return QStringLiteral("%1").arg(number, 2, 10, QChar(u'0'));
}

QString onOff(const char* keyword, bool on) {
    return QStringLiteral("##%1%2").arg(QLatin1String(keyword)).arg(on ? 1 : 0);
}

/// Whether a source would take the line for the end of a part.
bool looksLikeFence(const std::string& line) {
    const std::size_t start = line.find_first_not_of('\\');
    return start != std::string::npos && line.compare(start, std::string::npos, "+++") == 0;
}

} // namespace

QString threeDigits(int number) {
    return QStringLiteral("%1").arg(std::clamp(number, 0, kHighestNumber), 3, 10, QChar(u'0'));
}

void Writer::line(const QString& line) {
    std::string utf8 = line.toStdString();
    lines_.push_back(looksLikeFence(utf8) ? "\\" + utf8 : std::move(utf8));
    places_.push_back(positions_.line(at_));
    lastIsText_ = false;
}

void Writer::directive(const QString& line) {
    this->line(line);
}

void Writer::raw(const QString& line) {
    this->line(line);
}

void Writer::text(const QString& text) {
    // A text that begins like a directive is printed in two parts.
    QString rest = text;
    while (rest.startsWith(QStringLiteral("##"))) {
        line(QStringLiteral("#"));
        rest.remove(0, 1);
    }
    line(rest);
    lastIsText_ = true;
}

void Writer::style(const Style& style) {
    if (style.points != style_.points)
        directive(QStringLiteral("##SI") + twoDigits(style.points));
    if (style.face != style_.face)
        directive(QStringLiteral("##FONT") + twoDigits(style.face));
    if (style.bold != style_.bold)
        directive(onOff("BOL", style.bold));
    if (style.ink != style_.ink)
        directive(QStringLiteral("##C") + threeDigits(style.ink));
    if (style.italic != style_.italic)
        directive(onOff("ITA", style.italic));
    style_ = style;
}

void Writer::piece(const Piece& piece) {
    style(piece.style);
    if (!piece.directive)
        return text(piece.line);
    directive(piece.line);
    if (piece.line == QStringLiteral("##CHAPEAU"))
        style_.ink = kBlackInk; // any directive that begins with "C" sets an ink
}

void Writer::endLine(const Style& base) {
    const bool sameHeight = style_.points == base.points && style_.face == base.face;
    if (lastIsText_ && sameHeight) {
        lines_.back() += QString::fromUtf16(kParagraphEnd).toStdString();
        lastIsText_ = false;
        return;
    }
    style(base);
    line(QString::fromUtf16(kParagraphEnd));
}

void Writer::movePenY(int pixels) {
    for (int left = pixels; left != 0;) {
        const int step = std::clamp(left, kLowestMove, kHighestNumber);
        directive(step < 0 ? QStringLiteral("##PIY-") + twoDigits(-step)
                           : QStringLiteral("##PIY") + threeDigits(step));
        left -= step;
    }
}

void Writer::penX(int pixels) {
    directive(QStringLiteral("##POX") + threeDigits(pixels));
}

CompiledText Writer::text() const {
    CompiledText text;
    for (const std::string& line : lines_)
        text.source += line + '\n';
    text.markdownLines = places_;
    return text;
}

} // namespace authoring
