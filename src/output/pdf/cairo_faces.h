#pragma once

#include "page/faces/font_book.h"

#include <cairo.h>

#include <memory>
#include <unordered_map>
#include <vector>

namespace output {

/// A face as cairo draws with it. A bold or slanted cut that the system lacks is made from the
/// upright one, as on screen.
class CairoFace {
public:
    explicit CairoFace(const page::FontBook::FaceSource& source);
    CairoFace(const CairoFace&) = delete;
    CairoFace& operator=(const CairoFace&) = delete;
    ~CairoFace();

    /// Null when there is no such face.
    cairo_font_face_t* face() const { return face_; }

    /// How far the letters have to be slanted, to the em.
    double slant() const { return slant_; }

    /// Whether a glyph, shown without a word on what it means, is taken for `character`: the first
    /// character that a document has for a glyph, by the face's own table or by what was said with
    /// it, stands for all that come later without one. To be asked for each glyph that is shown, in
    /// their order.
    bool tells(quint32 glyph, char32_t character);

    /// By how much a glyph's advance in a file falls short of its own, in em: files have whole
    /// thousandths.
    double shortfall(quint32 glyph) const;

private:
    struct Glyph {
        char32_t character = 0; ///< the first by the face's own table; 0 when there is none
        bool isWritten = false; ///< `character` is what the document has
        float shortfall = 0;
    };

    cairo_font_face_t* face_ = nullptr;
    double slant_ = 0;
    std::vector<Glyph> glyphs_;
};

/// The faces of a font book, as one document has them.
class CairoFaces {
public:
    /// The face of a fallback. It lives as long as this object.
    CairoFace& face(const page::Font& font, int fallback);

private:
    struct Asked {
        QString face;
        bool bold, italic;
        int fallback;
        CairoFace* answer;
    };

    CairoFace& find(const page::Font& font, int fallback);

    std::vector<Asked> asked_; ///< a course has a dozen; whole texts ask for the same
    std::unordered_map<const page::FontBook::FaceSource*, std::unique_ptr<CairoFace>> faces_;
};

} // namespace output
