#include "output/pdf/cairo_faces.h"

#include <cairo-ft.h>

#include <cmath>
#include <memory>

#include FT_FREETYPE_H
#include FT_ADVANCES_H

namespace output {

namespace {

/// A face in FreeType, with all it needs: cairo may keep it longer than whoever asked for it.
struct FreeTypeFace {
    QByteArray file;
    FT_Library library = nullptr;
    FT_Face face = nullptr;

    explicit FreeTypeFace(const QByteArray& bytes) : file(bytes) {
        if (file.isEmpty() || FT_Init_FreeType(&library) != 0)
            return;
        if (FT_New_Memory_Face(library, reinterpret_cast<const FT_Byte*>(file.constData()),
                               static_cast<FT_Long>(file.size()), 0, &face) != 0)
            face = nullptr;
    }
    FreeTypeFace(const FreeTypeFace&) = delete;
    FreeTypeFace& operator=(const FreeTypeFace&) = delete;
    ~FreeTypeFace() {
        if (face)
            FT_Done_Face(face);
        if (library)
            FT_Done_FreeType(library);
    }
};

/// The slant that FreeType, and with it the screen, gives letters: 12 degrees.
constexpr double kSlant = 0x366A / 65536.0;

const cairo_user_data_key_t kFaceKey = {};

void release(void* held) {
    delete static_cast<FreeTypeFace*>(held);
}

double shortfallOf(FT_Face face, FT_UInt glyph) {
    FT_Fixed advance = 0;
    if (FT_Get_Advance(face, glyph, FT_LOAD_NO_SCALE, &advance) != 0 || face->units_per_EM == 0)
        return 0;
    const double thousandths = 1000.0 * static_cast<double>(advance) / face->units_per_EM;
    return (thousandths - std::floor(thousandths)) / 1000;
}

} // namespace

CairoFace::CairoFace(const page::FontBook::FaceSource& source) {
    auto held = std::make_unique<FreeTypeFace>(source.file);
    const FT_Face face = held->face;
    if (!face)
        return;
    face_ = cairo_ft_font_face_create_for_ft_face(face, FT_LOAD_NO_HINTING);
    if (cairo_font_face_set_user_data(face_, &kFaceKey, held.get(), release) !=
        CAIRO_STATUS_SUCCESS) {
        cairo_font_face_destroy(face_);
        face_ = nullptr;
        return;
    }
    held.release();
    if (source.bold && !(face->style_flags & FT_STYLE_FLAG_BOLD))
        cairo_ft_font_face_set_synthesize(face_, CAIRO_FT_SYNTHESIZE_BOLD);
    // Left to cairo, letters would stand upright in the file.
    if (source.italic && !(face->style_flags & FT_STYLE_FLAG_ITALIC))
        slant_ = kSlant;

    glyphs_.resize(static_cast<std::size_t>(face->num_glyphs));
    for (std::size_t i = 0; i < glyphs_.size(); ++i)
        glyphs_[i].shortfall = static_cast<float>(shortfallOf(face, static_cast<FT_UInt>(i)));
    FT_UInt glyph = 0;
    for (FT_ULong code = FT_Get_First_Char(face, &glyph); glyph != 0;
         code = FT_Get_Next_Char(face, code, &glyph))
        if (glyph < glyphs_.size() && glyphs_[glyph].character == 0)
            glyphs_[glyph].character = static_cast<char32_t>(code);
}

CairoFace::~CairoFace() {
    if (face_)
        cairo_font_face_destroy(face_);
}

bool CairoFace::tells(quint32 glyph, char32_t character) {
    if (glyph >= glyphs_.size())
        return false;
    Glyph& known = glyphs_[glyph];
    const bool isSaid = known.character != character;
    if (!known.isWritten)
        known.character = character;
    known.isWritten = true;
    return !isSaid;
}

double CairoFace::shortfall(quint32 glyph) const {
    return glyph < glyphs_.size() ? glyphs_[glyph].shortfall : 0;
}

CairoFace& CairoFaces::face(const page::Font& font, int fallback) {
    for (const Asked& asked : asked_)
        if (asked.fallback == fallback && asked.bold == font.bold && asked.italic == font.italic &&
            asked.face == font.face)
            return *asked.answer;
    // A page can ask for faces by any number of names.
    constexpr std::size_t kMaxAsked = 64;
    if (asked_.size() >= kMaxAsked)
        asked_.clear();
    asked_.push_back({font.face, font.bold, font.italic, fallback, &find(font, fallback)});
    return *asked_.back().answer;
}

CairoFace& CairoFaces::find(const page::Font& font, int fallback) {
    const page::FontBook::FaceSource& source = page::FontBook::faceSource(font, fallback);
    std::unique_ptr<CairoFace>& slot = faces_[&source];
    if (!slot)
        slot = std::make_unique<CairoFace>(source);
    return *slot;
}

} // namespace output
