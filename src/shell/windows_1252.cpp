#include "shell/windows_1252.h"

#include "text/windows_1252.h"

namespace shell {

namespace {

char encoded(char16_t character) {
    if (const auto code = text::toWindows1252(character))
        return static_cast<char>(*code);
    const bool isOpenCode =
        character <= 0xFF && !text::fromWindows1252(static_cast<std::uint8_t>(character));
    return isOpenCode ? static_cast<char>(character) : '?';
}

} // namespace

QString fromWindows1252(const QByteArray& bytes) {
    QString text = QString::fromLatin1(bytes);
    for (QChar& c : text)
        c = text::fromWindows1252(static_cast<std::uint8_t>(c.unicode())).value_or(c.unicode());
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
