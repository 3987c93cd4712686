#include "page/faces/font_book.h"

#include "page/face_names.h"
#include "page/faces/face_file.h"
#include "page/printable_text.h"
#include "page/sign_faces.h"
#include "page/twips.h"

#include <QFont>
#include <QFontDatabase>
#include <QHash>

#include <array>
#include <map>
#include <optional>
#include <unordered_map>

namespace page {

namespace {

/// Ascent and descent in 1/2048 of the em, as the tables of the faces asked for give them.
struct DesignNumbers {
    int up;
    int down;
};

struct StandIn {
    QString asked;
    QString family;
    DesignNumbers numbers;
};

const std::array<StandIn, 5>& standIns() {
    static const std::array<StandIn, 5> kStandIns = {{
        {kTextFace, QStringLiteral("Liberation Sans"), {1854, 434}},
        {kBookFace, QStringLiteral("Liberation Serif"), {1825, 443}},
        {kSymbolFace, QStringLiteral("Standard Symbols PS"), {2059, 450}},
        {kWingdingsFace, QStringLiteral("Symbola"), {1841, 431}},
        {kComicFace, QStringLiteral("Comic Neue"), {2257, 597}},
    }};
    return kStandIns;
}

const StandIn& standIn(const QString& face) {
    for (const StandIn& candidate : standIns())
        if (face.compare(candidate.asked, Qt::CaseInsensitive) == 0)
            return candidate;
    return standIns().front();
}

/// Where characters that a face lacks come from, in this order.
const QStringList& fallbackFamilies() {
    static const QStringList kFamilies = {QStringLiteral("Liberation Sans"),
                                          QStringLiteral("Liberation Serif"),
                                          QStringLiteral("DejaVu Sans"), QStringLiteral("Symbola")};
    return kFamilies;
}

/// A style of a family as the system has it.
struct ChosenFace {
    QRawFont font;
    std::optional<FontBook::FaceSource> source; ///< read when it is first asked for
};

/// Choosing the file of a family costs a hundred times as much as another size of a face that is
/// already there, so each style of a family is chosen once. Vertical hinting leaves advances as
/// they are and makes small text crisp.
ChosenFace& choose(const QString& family, const Font& style) {
    static std::unordered_map<QString, ChosenFace> chosen;
    const QString key = family + (style.bold ? u'b' : u'-') + (style.italic ? u'i' : u'-');
    const auto found = chosen.find(key);
    if (found != chosen.end())
        return found->second;
    QFont font(family);
    font.setPixelSize(16);
    font.setBold(style.bold);
    font.setItalic(style.italic);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    font.setStyleStrategy(QFont::NoFontMerging);
    return chosen.emplace(key, ChosenFace{QRawFont::fromFont(font), {}}).first->second;
}

/// A face at one size.
QRawFont load(const QString& family, double pixelSize, const Font& style) {
    QRawFont raw = choose(family, style).font;
    if (raw.isValid() && raw.pixelSize() != pixelSize)
        raw.setPixelSize(pixelSize);
    return raw;
}

quint32 glyphIndex(const QRawFont& font, char32_t character) {
    if (!font.isValid())
        return 0;
    const QList<quint32> indexes = font.glyphIndexesForString(QString::fromUcs4(&character, 1));
    return indexes.isEmpty() ? 0 : indexes.first();
}

/// Heights as the system that pages were written for rounds them: each part for itself.
int roundedPart(int designNumber, int pixels) {
    return qRound(designNumber * pixels / 2048.0);
}

} // namespace

/// One face at one size and style: which glyph shows a character, and how far it moves the pen.
class FontBook::Face {
public:
    explicit Face(const Font& font)
        : font_(font), signs_(signFace(font.face)), numbers_(standIn(font.face).numbers),
          pixels_(fontPixels(font.points)) {
        for (const QString& family : families(font.face))
            fallbacks_.push_back({family, {}, false});
    }

    struct Glyph {
        int fallback = 0;
        quint32 index = 0; ///< 0 shows nothing
        double advance = 0;
        char32_t shown = 0; ///< 0 when it is no character
    };

    const Glyph& glyph(char32_t character) const {
        if (character < latin_.size()) {
            auto& slot = latin_[character];
            if (!slot)
                slot = find(character);
            return *slot;
        }
        auto found = others_.constFind(character);
        if (found == others_.constEnd())
            found = others_.insert(character, find(character));
        return *found;
    }

    double height() const { return (up() + roundedPart(numbers_.down, pixels_)) * kTwipsPerPixel; }
    double ascent() const { return up() * kTwipsPerPixel; }
    bool isVisible() const { return pixels_ > 0; }

    QRawFont deviceFont(int fallback, double pixelSize) const {
        auto& sizes = deviceFonts_[fallback];
        auto found = sizes.find(pixelSize);
        if (found == sizes.end())
            found =
                sizes
                    .emplace(pixelSize, load(fallbacks_[static_cast<std::size_t>(fallback)].family,
                                             pixelSize, font_))
                    .first;
        return found->second;
    }

private:
    struct FallbackFont {
        QString family;
        QRawFont reference;
        bool loaded;
    };

    int up() const { return roundedPart(numbers_.up, pixels_); }

    const QRawFont& reference(int fallback) const {
        FallbackFont& wanted = fallbacks_[static_cast<std::size_t>(fallback)];
        if (!wanted.loaded) {
            wanted.reference = load(wanted.family, pixels_ * kTwipsPerPixel, font_);
            wanted.loaded = true;
        }
        return wanted.reference;
    }

    Glyph find(char32_t character) const {
        if (!isVisible())
            return {};
        const int code = signs_ == SignFace::None || character > 0xFFFF
                             ? -1
                             : signCode(QChar(static_cast<char16_t>(character)));
        if (code < 0)
            return findUnicode(character, signs_ == SignFace::None ? 0 : 1);
        // The sign face stands at its own 8-bit codes where it is installed.
        if (signs_ == SignFace::Symbol)
            if (const quint32 index = glyphIndex(reference(0), static_cast<char32_t>(code)))
                return measured(0, index, signCharacter(signs_, code));
        const char32_t sign = drawnSignCharacter(signs_, code);
        // Codes without a sign show nothing and leave the pen where it is.
        if (sign == 0)
            return {};
        Glyph glyph = findUnicode(sign, signs_ == SignFace::Symbol ? 1 : 0);
        glyph.shown = signCharacter(signs_, code);
        return glyph;
    }

    Glyph findUnicode(char32_t character, int firstStage) const {
        if (showsNothing(character))
            return {};
        if (showsABlank(character))
            return findUnicode(U' ', firstStage);
        for (int fallback = firstStage; fallback < static_cast<int>(fallbacks_.size()); ++fallback)
            if (const quint32 index = glyphIndex(reference(fallback), character))
                return measured(fallback, index, character);
        return measured(firstStage, 0, character);
    }

    Glyph measured(int fallback, quint32 index, char32_t shown) const {
        const QRawFont& font = reference(fallback);
        if (!font.isValid())
            return {};
        const QList<QPointF> advances =
            font.advancesForGlyphIndexes({index}, QRawFont::SeparateAdvances);
        return {fallback, index, advances.isEmpty() ? 0 : advances.first().x(), shown};
    }

    Font font_;
    SignFace signs_;
    DesignNumbers numbers_;
    int pixels_;
    mutable std::vector<FallbackFont> fallbacks_;
    mutable std::array<std::optional<Glyph>, 256> latin_;
    mutable QHash<char32_t, Glyph> others_;
    mutable std::map<int, std::map<double, QRawFont>> deviceFonts_;
};

namespace {

/// Calls `visit` with each character of a text; a lone surrogate counts as U+FFFD.
template <class Visit>
void forEachCharacter(QStringView text, Visit visit) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text[i];
        if (!unit.isSurrogate())
            visit(static_cast<char32_t>(unit.unicode()));
        else if (unit.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            visit(QChar::surrogateToUcs4(unit, text[++i]));
        else
            visit(U'\uFFFD');
    }
}

} // namespace

FontBook::FontBook() = default;
FontBook::~FontBook() = default;

const FontBook::Face& FontBook::face(const Font& font) const {
    Font key = font;
    key.underline = false;
    if (lastUsed_ < faces_.size() && faces_[lastUsed_].first == key)
        return *faces_[lastUsed_].second;
    // A page can ask for any number of sizes; what many pages left behind is let go of.
    static constexpr std::size_t kMaxFaces = 256;
    for (lastUsed_ = 0; lastUsed_ < faces_.size(); ++lastUsed_)
        if (faces_[lastUsed_].first == key)
            return *faces_[lastUsed_].second;
    if (faces_.size() >= kMaxFaces)
        faces_.clear();
    faces_.emplace_back(key, std::make_unique<Face>(key));
    lastUsed_ = faces_.size() - 1;
    return *faces_.back().second;
}

double FontBook::width(const Font& font, QStringView text) const {
    const Face& measure = face(font);
    double sum = 0;
    forEachCharacter(text, [&](char32_t c) { sum += measure.glyph(c).advance; });
    return sum;
}

double FontBook::height(const Font& font) const {
    return face(font).height();
}

double FontBook::ascent(const Font& font) const {
    return face(font).ascent();
}

std::vector<FontBook::Run> FontBook::place(const Font& font, QStringView text) const {
    const Face& source = face(font);
    std::vector<Run> runs;
    if (!source.isVisible())
        return runs;
    double x = 0;
    forEachCharacter(text, [&](char32_t c) {
        const Face::Glyph& glyph = source.glyph(c);
        if (glyph.advance != 0 || glyph.index != 0) {
            if (runs.empty() || runs.back().fallback != glyph.fallback)
                runs.push_back({glyph.fallback, {}, {}});
            runs.back().glyphs.append(glyph.index);
            runs.back().offsets.append(x);
        }
        x += glyph.advance;
    });
    return runs;
}

std::vector<FontBook::PlacedGlyph> FontBook::glyphs(const Font& font, QStringView text) const {
    const Face& source = face(font);
    std::vector<PlacedGlyph> placed;
    if (!source.isVisible())
        return placed;
    placed.reserve(static_cast<std::size_t>(text.size()));
    double x = 0;
    forEachCharacter(text, [&](char32_t c) {
        const Face::Glyph& glyph = source.glyph(c);
        if (glyph.advance != 0 || glyph.index != 0)
            placed.push_back({glyph.fallback, glyph.index, x, glyph.shown});
        x += glyph.advance;
    });
    return placed;
}

const FontBook::FaceSource& FontBook::faceSource(const Font& font, int fallback) {
    ChosenFace& chosen = choose(families(font.face).value(fallback), font);
    if (!chosen.source)
        chosen.source = {faceFile(chosen.font), font.bold, font.italic};
    return *chosen.source;
}

QRawFont FontBook::deviceFont(const Font& font, int fallback, double pixelSize) const {
    return face(font).deviceFont(fallback, pixelSize);
}

QStringList FontBook::families(const QString& face) {
    QStringList list{standIn(face).family};
    for (const QString& family : fallbackFamilies())
        if (family != list.first())
            list.append(family);
    return list;
}

QStringList FontBook::missingFamilies() {
    QStringList missing;
    for (const StandIn& candidate : standIns())
        if (!QFontDatabase::hasFamily(candidate.family))
            missing.append(candidate.family);
    return missing;
}

} // namespace page
