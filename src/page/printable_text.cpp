#include "page/printable_text.h"

#include <algorithm>

namespace page {

namespace {

constexpr char16_t kFirstAccent = 0x300; ///< no character below combines with one before it
constexpr char32_t kSoftHyphen = 0xAD;

/// Composing takes a time that grows with the square of the accents, so a long line is composed
/// piece by piece, of this many characters and the accents that follow.
constexpr qsizetype kPiece = 2000;
/// More accents than this on one letter are no writing.
constexpr qsizetype kMostAccents = 100;

bool combines(QChar c) {
    return c.unicode() >= kFirstAccent && c.isMark();
}

} // namespace

QStringView composedText(QStringView line, QString& buffer) {
    if (std::none_of(line.begin(), line.end(), combines))
        return line;
    buffer.clear();
    buffer.reserve(line.size());
    for (qsizetype start = 0, end = 0; start < line.size(); start = end) {
        end = std::min(line.size(), start + kPiece);
        const qsizetype last = std::min(line.size(), end + kMostAccents);
        while (end < last && combines(line[end]))
            ++end;
        buffer +=
            line.sliced(start, end - start).toString().normalized(QString::NormalizationForm_C);
    }
    return buffer;
}

bool showsABlank(char32_t character) {
    return character >= U'\t' && character <= U'\r';
}

bool showsNothing(char32_t character) {
    if (character == kSoftHyphen || showsABlank(character))
        return false;
    const QChar::Category category = QChar::category(character);
    return category == QChar::Other_Control || category == QChar::Other_Format;
}

} // namespace page
