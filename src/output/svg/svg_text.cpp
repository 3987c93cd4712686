#include "output/svg/svg_text.h"

#include "page/face_names.h"
#include "page/printable_text.h"
#include "page/sign_faces.h"
#include "page/twips.h"

#include <array>
#include <charconv>
#include <cmath>

namespace output::svg {

namespace {

/// Whether XML 1.0 allows a unit of UTF-16, pairs of surrogates apart.
bool isAllowed(QChar unit) {
    return unit.unicode() >= 0x20 && !unit.isSurrogate() && unit.unicode() < 0xFFFE;
}

} // namespace

QString plain(QStringView text) {
    QString allowed;
    allowed.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text[i];
        if (unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            allowed.append(text.sliced(i++, 2));
        else if (page::showsABlank(unit.unicode()) && !page::showsNothing(unit.unicode()))
            allowed += u' ';
        else if (!page::showsNothing(unit.unicode()))
            allowed += isAllowed(unit) ? unit : QChar(QChar::ReplacementCharacter);
    }
    return allowed;
}

QString pixels(double twips) {
    std::array<char, 32> text{};
    // Rounded first: "-0.0001" must not become "-0".
    const double value = std::round(twips / page::kTwipsPerPixel * 1000) / 1000 + 0.0;
    char* end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 3)
            .ptr;
    while (end[-1] == '0')
        --end;
    if (end[-1] == '.')
        --end;
    return QString::fromLatin1(text.data(), end - text.data());
}

QString colour(QRgb ink) {
    return QStringLiteral("#%1").arg(ink & 0xffffff, 6, 16, QChar(u'0'));
}

QString shownText(const QString& face, const QString& text) {
    const page::SignFace signs = page::signFace(face);
    if (signs == page::SignFace::None)
        return text;
    QString shown;
    for (const QChar character : text) {
        const int code = page::signCode(character);
        if (code < 0)
            shown += character;
        else if (const char32_t sign = page::drawnSignCharacter(signs, code))
            shown += QString::fromUcs4(&sign, 1);
    }
    return shown;
}

QString families(const QString& face) {
    if (face.compare(page::kBookFace, Qt::CaseInsensitive) == 0)
        return QStringLiteral("Liberation Serif,Times New Roman,DejaVu Sans,Symbola,serif");
    if (face.compare(page::kComicFace, Qt::CaseInsensitive) == 0)
        return QStringLiteral("Comic Neue,Comic Sans MS,DejaVu Sans,Symbola,cursive");
    switch (page::signFace(face)) {
    case page::SignFace::Symbol:
        return QStringLiteral("Liberation Serif,Times New Roman,DejaVu Sans,Symbola,serif");
    case page::SignFace::Wingdings:
        return QStringLiteral("Symbola,Segoe UI Symbol,DejaVu Sans,sans-serif");
    case page::SignFace::None:
        break;
    }
    return QStringLiteral("Liberation Sans,Arial,DejaVu Sans,Symbola,sans-serif");
}

} // namespace output::svg
