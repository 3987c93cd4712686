#pragma once

#include "page/faces/font_book.h"
#include "publish/site_folder.h"

#include <QString>

#include <map>
#include <set>
#include <tuple>

namespace publish {

/// The faces that a site brings along, so that every device shows the same page: of each one no
/// more than what the course writes.
class WebFaces {
public:
    explicit WebFaces(const page::FontBook& fonts) : fonts_(fonts) {}

    /// Takes note of what is written.
    void note(const page::Font& font, const QString& text);

    /// What style sheets call the families of a face, separated by commas: the order in which the
    /// font book looks for a character.
    static QString families(const QString& face);

    /// Writes the faces; gives the rules of the style sheet that name them.
    QByteArray write(SiteFolder& site) const;

private:
    using Style = std::tuple<QString, bool, bool>; ///< family, bold, italic
    struct Used {
        page::Font font; ///< and which of its faces, for the font book
        int fallback = 0;
        std::set<char32_t> characters;
    };

    Used& faceOf(const page::Font& font, int fallback);

    const page::FontBook& fonts_;
    std::map<Style, Used> used_;
};

} // namespace publish
