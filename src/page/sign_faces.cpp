#include "page/sign_faces.h"

#include "page/face_names.h"
#include "text/windows_1252.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>
#include <system_error>

// Resources of a static library are found only after this, which no namespace may hold.
static void initSignFaceResources() {
    Q_INIT_RESOURCE(encodings);
}

namespace page {

namespace {

using Encoding = std::array<char32_t, 256>;

/// Enters a line of a table: code, Unicode value (both hexadecimal) and name, separated by tabs.
void enter(std::string_view line, Encoding& encoding) {
    const char* const end = line.data() + line.size();
    std::size_t code = 0;
    const auto first = std::from_chars(line.data(), end, code, 16);
    if (first.ec != std::errc() || code >= encoding.size() || first.ptr == end)
        return;
    std::uint32_t character = 0;
    std::from_chars(first.ptr + 1, end, character, 16);
    encoding[code] = character;
}

/// The first sign of a page waits for it: no pieces of it are copied.
Encoding readEncoding(const QString& resource) {
    Encoding encoding{};
    initSignFaceResources();
    QFile file(resource);
    if (!file.open(QIODevice::ReadOnly))
        return encoding;
    const QByteArray bytes = file.readAll();
    std::string_view rest(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        enter(line, encoding); // remarks begin with no number
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    }
    return encoding;
}

const Encoding& encoding(SignFace face) {
    if (face == SignFace::Symbol) {
        static const Encoding symbol = readEncoding(QStringLiteral(":/page/symbol-encoding.tsv"));
        return symbol;
    }
    static const Encoding wingdings = readEncoding(QStringLiteral(":/page/wingdings-encoding.tsv"));
    return wingdings;
}

constexpr char32_t kLoopedPhi = U'\u03C6';
constexpr char32_t kStraightPhi = U'\u03D5';

} // namespace

SignFace signFace(const QString& face) {
    if (face.compare(kSymbolFace, Qt::CaseInsensitive) == 0)
        return SignFace::Symbol;
    if (face.compare(kWingdingsFace, Qt::CaseInsensitive) == 0)
        return SignFace::Wingdings;
    return SignFace::None;
}

int signCode(QChar character) {
    const char16_t unit = character.unicode();
    if (unit < 0x100)
        return unit;
    if (unit >= 0xF020 && unit <= 0xF0FF)
        return unit & 0xFF;
    const auto code = text::toWindows1252(unit);
    return code ? *code : -1;
}

char32_t signCharacter(SignFace face, int code) {
    if (face == SignFace::None || code < 0 || code > 255)
        return 0;
    return encoding(face)[static_cast<std::size_t>(code)];
}

char32_t drawnSignCharacter(SignFace face, int code) {
    const char32_t character = signCharacter(face, code);
    if (face == SignFace::Symbol && character == kLoopedPhi)
        return kStraightPhi;
    if (face == SignFace::Symbol && character == kStraightPhi)
        return kLoopedPhi;
    return character;
}

QString readableSigns(const QString& face, const QString& text) {
    const SignFace signs = signFace(face);
    if (signs == SignFace::None)
        return text;
    QString readable;
    for (const QChar character : text) {
        const int code = signCode(character);
        if (code < 0)
            readable += character;
        else if (const char32_t sign = signCharacter(signs, code))
            readable += QString::fromUcs4(&sign, 1);
    }
    return readable;
}

} // namespace page
