#include "output/paper/paper_painter.h"

#include "page/ink_area.h"
#include "page/printed_picture.h"
#include "page/sign_faces.h"
#include "page/twips.h"
#include "page/without_masks.h"

#include <QGlyphRun>

namespace output {

namespace {

/// Characters that stand side by side in a run just as the font book places them: of other ones,
/// text layout may hide some and reorder others.
bool isPlain(char32_t c) {
    return (c >= 0x20 && c <= 0x7E) || (c >= 0xA0 && c <= 0x24F && c != 0xAD);
}

quint32 glyphOf(const QRawFont& font, char32_t character) {
    const QList<quint32> glyphs = font.glyphIndexesForString(QString::fromUcs4(&character, 1));
    return glyphs.size() == 1 ? glyphs.first() : 0;
}

} // namespace

void PaperPainter::draw(const page::Sheet& sheet) {
    const std::vector<page::DrawnOperation> operations =
        page::withoutMasks(sheet.operations, fonts_);
    for (const page::PlacedSurface& place : sheet.surfaces) {
        painter_.save();
        painter_.translate(place.x, place.y);
        const QSizeF size(place.width, place.height);
        QRectF clip;
        for (const page::DrawnOperation& operation : operations)
            std::visit(
                [&](const auto& drawing) {
                    if (drawing.surface != place.surface || !shapes_.span(drawing))
                        return;
                    const QRectF area = page::inkArea(drawing, size, fonts_);
                    if (area.isEmpty())
                        return;
                    if (area != clip)
                        painter_.setClipRect(clip = area);
                    draw(drawing);
                },
                operation);
        painter_.restore();
    }
}

/// As on screen, on whole pixels of 96 to the inch.
template <class Shape>
void PaperPainter::drawInPixels(const Shape& shape) {
    painter_.save();
    painter_.scale(page::kTwipsPerPixel, page::kTwipsPerPixel);
    shapes_.draw(shape);
    painter_.restore();
}

void PaperPainter::draw(const page::PictureOperation& picture) {
    if (!(picture.width > 0 && picture.height > 0 &&
          picture.width < kFarPx * page::kTwipsPerPixel &&
          picture.height < kFarPx * page::kTwipsPerPixel))
        return;
    const QRectF place(picture.x, picture.y, picture.width, picture.height);
    const QSize drawn = (place.size() / page::kTwipsPerPixel).toSize().expandedTo({1, 1});
    // What is no photograph would be made one in a PDF file, which a printer often is.
    painter_.setRenderHint(QPainter::LosslessImageRendering,
                           picture.picture->format() != page::PictureFormat::Jpeg);
    painter_.drawImage(place, picture.picture->image(page::printedPixels(*picture.picture, drawn)));
}

void PaperPainter::draw(const page::TextOperation& text) {
    painter_.setPen(QColor::fromRgb(text.ink));
    const double foot = text.y + fonts_.ascent(text.font);
    const auto glyphs = fonts_.glyphs(text.font, text.text);
    for (std::size_t i = 0; i < glyphs.size();) {
        PrintingFace& used = face(text.font, glyphs[i].fallback);
        const QPointF place(text.x + glyphs[i].offset, foot);
        const char32_t first = printed(used, text.font, glyphs[i]);
        if (!isPlain(first)) {
            drawGlyph(glyphs[i], used, place);
            ++i;
            continue;
        }
        QString run;
        const int fallback = glyphs[i].fallback;
        for (; i < glyphs.size() && glyphs[i].fallback == fallback; ++i) {
            const char32_t character = printed(used, text.font, glyphs[i]);
            if (!isPlain(character))
                break;
            run += QChar(static_cast<char16_t>(character));
        }
        painter_.setFont(used.font);
        painter_.drawText(place, run);
    }
    if (text.font.underline) {
        const double em = page::fontPixels(text.font.points) * page::kTwipsPerPixel;
        painter_.fillRect(QRectF(text.x, foot + em * page::kUnderlineDrop, text.width,
                                 std::max(page::kTwipsPerPixel, em * page::kUnderlineThickness)),
                          QColor::fromRgb(text.ink));
    }
}

void PaperPainter::drawGlyph(const page::FontBook::PlacedGlyph& glyph, const PrintingFace& face,
                             const QPointF& foot) {
    const auto found = face.codes.find({glyph.index, glyph.character});
    const char32_t character = found == face.codes.end() ? 0 : found->second;
    if (character > 0x20 && character != 0xAD) {
        painter_.setFont(face.font);
        painter_.drawText(foot, QString::fromUcs4(&character, 1));
        return;
    }
    // As an outline, for the few glyphs that no character prints.
    QGlyphRun run;
    run.setRawFont(face.raw);
    run.setGlyphIndexes({glyph.index});
    run.setPositions({QPointF()});
    painter_.drawGlyphRun(foot, run);
}

PaperPainter::PrintingFace& PaperPainter::face(const page::Font& font, int fallback) {
    page::Font key = font;
    key.underline = false;
    for (auto& [known, face] : faces_)
        if (known.first == key && known.second == fallback)
            return face;
    // A page can ask for any number of sizes.
    static constexpr std::size_t kMaxFaces = 256;
    if (faces_.size() >= kMaxFaces)
        faces_.clear();
    const int size = qRound(page::fontPixels(font.points) * page::kTwipsPerPixel);
    const QRawFont raw = fonts_.deviceFont(key, fallback, size);
    QFont printing(raw.familyName());
    printing.setPixelSize(std::max(1, size));
    printing.setBold(font.bold);
    printing.setItalic(font.italic);
    printing.setHintingPreference(QFont::PreferNoHinting);
    printing.setKerning(false);
    // Letter for letter: no ligatures, which are narrower, and no other face in between.
    printing.setStyleStrategy(
        static_cast<QFont::StyleStrategy>(QFont::PreferNoShaping | QFont::NoFontMerging));
    return faces_.emplace_back(std::pair(key, fallback), PrintingFace{printing, raw, {}}).second;
}

char32_t PaperPainter::printed(PrintingFace& face, const page::Font& font,
                               const page::FontBook::PlacedGlyph& glyph) {
    const auto [place, isNew] = face.codes.try_emplace({glyph.index, glyph.character}, 0);
    char32_t& code = place->second;
    if (!isNew)
        return code;
    if (glyph.character && glyphOf(face.raw, glyph.character) == glyph.index)
        return code = glyph.character;
    // The sign faces stand at their codes, or at characters of other shapes.
    const page::SignFace signs = page::signFace(font.face);
    for (int sign = 0x20; sign < 0x100 && signs != page::SignFace::None; ++sign) {
        if (page::signCharacter(signs, sign) != glyph.character)
            continue;
        for (const char32_t candidate :
             {page::drawnSignCharacter(signs, sign), static_cast<char32_t>(sign)})
            if (candidate && glyphOf(face.raw, candidate) == glyph.index)
                return code = candidate;
    }
    return code;
}

} // namespace output
