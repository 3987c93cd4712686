#include "platform/cairo/cairo_faces.h"

#include <cairo-ft.h>

#include <memory>

#include FT_FREETYPE_H

namespace platform {

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

CairoFaces::Face open(const FontBook::FaceSource& source) {
    auto held = std::make_unique<FreeTypeFace>(source.file);
    const FT_Face face = held->face;
    if (!face)
        return {};
    cairo_font_face_t* opened = cairo_ft_font_face_create_for_ft_face(face, FT_LOAD_NO_HINTING);
    if (cairo_font_face_set_user_data(opened, &kFaceKey, held.get(), release) !=
        CAIRO_STATUS_SUCCESS) {
        cairo_font_face_destroy(opened);
        return {};
    }
    held.release();
    if (source.bold && !(face->style_flags & FT_STYLE_FLAG_BOLD))
        cairo_ft_font_face_set_synthesize(opened, CAIRO_FT_SYNTHESIZE_BOLD);
    // Left to cairo, letters would stand upright in the file.
    const bool upright = source.italic && !(face->style_flags & FT_STYLE_FLAG_ITALIC);
    return {opened, upright ? kSlant : 0};
}

} // namespace

CairoFaces::~CairoFaces() {
    for (const auto& [source, face] : faces_)
        if (face.face)
            cairo_font_face_destroy(face.face);
}

const CairoFaces::Face& CairoFaces::face(const Font& font, int stage) {
    for (const Asked& asked : asked_)
        if (asked.stage == stage && asked.bold == font.bold && asked.italic == font.italic &&
            asked.face == font.face)
            return *asked.answer;
    // A page can ask for faces by any number of names.
    constexpr std::size_t kMaxAsked = 64;
    if (asked_.size() >= kMaxAsked)
        asked_.clear();
    asked_.push_back({font.face, font.bold, font.italic, stage, &find(font, stage)});
    return *asked_.back().answer;
}

const CairoFaces::Face& CairoFaces::find(const Font& font, int stage) {
    const FontBook::FaceSource& source = FontBook::faceSource(font, stage);
    const auto [slot, isNew] = faces_.try_emplace(&source);
    if (isNew)
        slot->second = open(source);
    return slot->second;
}

} // namespace platform
