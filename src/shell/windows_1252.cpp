#include "shell/windows_1252.h"

#include <algorithm>
#include <array>

namespace shell {

namespace {

constexpr char16_t kFirstSpecial = 0x80;

/// The codes 0x80 to 0x9F; all others are those of Latin-1.
constexpr std::array<char16_t, 32> kSpecials = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool isSpecialCode(char16_t code) {
    return code >= kFirstSpecial && code < kFirstSpecial + kSpecials.size();
}

char encoded(char16_t character) {
    const auto special = std::find(kSpecials.begin(), kSpecials.end(), character);
    if (special != kSpecials.end())
        return static_cast<char>(kFirstSpecial + (special - kSpecials.begin()));
    return character > 0xFF || isSpecialCode(character) ? '?' : static_cast<char>(character);
}

} // namespace

QString fromWindows1252(const QByteArray& bytes) {
    QString text = QString::fromLatin1(bytes);
    for (QChar& c : text) {
        if (isSpecialCode(c.unicode()))
            c = QChar(kSpecials[c.unicode() - kFirstSpecial]);
    }
    return text;
}

QByteArray toWindows1252(const QString& text) {
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar c : text)
        bytes.append(encoded(c.unicode()));
    return bytes;
}

} // namespace shell
