#pragma once

#include "platform/qt/font_book.h"

#include <cairo.h>

#include <unordered_map>
#include <vector>

namespace platform {

/// The faces of a font book as cairo draws with them. A bold or slanted cut that the system lacks
/// is made from the upright one, as on screen.
class CairoFaces {
public:
    CairoFaces() = default;
    CairoFaces(const CairoFaces&) = delete;
    CairoFaces& operator=(const CairoFaces&) = delete;
    ~CairoFaces();

    struct Face {
        cairo_font_face_t* face = nullptr; ///< null when there is none
        double slant = 0;                  ///< how far the letters have to be slanted, to the em
    };

    /// The face of a stage. It lives as long as this object.
    const Face& face(const Font& font, int stage);

private:
    struct Asked {
        QString face;
        bool bold, italic;
        int stage;
        const Face* answer;
    };

    const Face& find(const Font& font, int stage);

    std::vector<Asked> asked_; ///< a course has a dozen; whole texts ask for the same
    std::unordered_map<const FontBook::FaceSource*, Face> faces_;
};

} // namespace platform
