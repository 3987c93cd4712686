#include "publish/web_faces.h"

#include "publish/font_subset.h"

#include <QStringList>

namespace publish {

namespace {

struct Family {
    const char16_t* family;
    const char16_t* name; ///< in style sheets; also of its files
};
constexpr Family kFamilies[] = {
    {u"Liberation Sans", u"cours-sans"}, {u"Liberation Serif", u"cours-serif"},
    {u"Comic Neue", u"cours-main"},      {u"DejaVu Sans", u"cours-signes"},
    {u"Symbola", u"cours-symboles"},
};

/// Empty for a family that no page is shown in: the face of the Greek letters only measures them.
QString nameOf(const QString& family) {
    for (const Family& known : kFamilies)
        if (family == known.family)
            return QString::fromUtf16(known.name);
    return {};
}

QByteArray rule(const QString& name, FaceStyle style, const QString& file) {
    return QStringLiteral("@font-face{font-family:%1;font-weight:%2;font-style:%3;"
                          "src:url(%4) format(\"woff2\")}\n")
        .arg(name, style.bold ? QStringLiteral("700") : QStringLiteral("400"),
             style.italic ? QStringLiteral("italic") : QStringLiteral("normal"), file)
        .toUtf8();
}

} // namespace

void WebFaces::note(const page::Font& font, const QString& text) {
    Used* used = nullptr; // nearly always one face for all of the text
    int fallback = 0;
    for (const page::FontBook::PlacedGlyph& glyph : fonts_.glyphs(font, text)) {
        if (glyph.character == 0)
            continue;
        if (!used || glyph.fallback != fallback) {
            fallback = glyph.fallback;
            used = &faceOf(font, fallback);
        }
        used->characters.insert(glyph.character);
    }
}

WebFaces::Used& WebFaces::faceOf(const page::Font& font, int fallback) {
    const QStringList families = page::FontBook::families(font.face);
    // What only measures here is drawn with the next family that has it.
    if (nameOf(families.value(fallback)).isEmpty())
        ++fallback;
    return used_
        .try_emplace({families.value(fallback), font.bold, font.italic}, Used{font, fallback, {}})
        .first->second;
}

QString WebFaces::families(const QString& face) {
    QStringList names;
    for (const QString& family : page::FontBook::families(face))
        if (const QString name = nameOf(family); !name.isEmpty())
            names.append(name);
    return names.join(u',');
}

QByteArray WebFaces::write(SiteFolder& site) const {
    QByteArray rules;
    for (const auto& [style, used] : used_) {
        const QString name = nameOf(std::get<0>(style));
        const auto& source = page::FontBook::faceSource(used.font, used.fallback);
        const QByteArray subset = fontSubset(source.file, used.characters);
        if (name.isEmpty() || subset.isEmpty())
            continue;
        const QString file = site.add(QStringLiteral("polices/") + name, ".woff2", subset);
        rules += rule(name, faceStyle(source.file), file);
    }
    return rules;
}

} // namespace publish
