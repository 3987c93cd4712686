#pragma once

#include "page/recording.h"
#include "page/sheet.h"
#include "text/bounded_array.h"

#include <QPointF>
#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace markup {

/// The links that a page has placed: the two arrays of link controls and the floating menus.
struct LinkTable {
    /// Links of each kind that a page can have: more than any screenful shows, several times over.
    static constexpr int kLast = 99;
    static constexpr int kLastMenu = 20;
    static constexpr int kLastEntry = 9;

    /// One control. It is free while its tag is empty, whether visible or not.
    struct Element {
        page::LinkOperation link;
        bool visible = false;
    };
    using Elements = text::BoundedArray<Element, 0, kLast>;

    struct MenuEntry {
        QString caption; ///< empty: the entry is free, and not shown
        QString target;
    };
    using Menu = text::BoundedArray<MenuEntry, 0, kLastEntry>;

    Elements Labelien;
    Elements Imagelien;
    text::BoundedArray<Menu, 0, kLastMenu> menusFlottants;
};

/// The controls that a question can place, all hidden before it is drawn. The test window owns
/// them and shows what the page put here; positions are twips on the surface of the question.
struct AnswerFields {
    static constexpr int kLastChoice = 4;

    /// Width that the typed answer takes in a line, in twips.
    static constexpr double kTextBoxWidth = 200 * 15;
    /// Side of the pictures beside a link and of the video icon, and the gap after the former.
    static constexpr double kIconWidth = 24 * 15;
    static constexpr double kIconGap = 8 * 15;

    struct Field {
        bool visible = false;
        page::FieldOperation place;
    };
    using Choices = text::BoundedArray<Field, 0, kLastChoice>;

    Choices Option1;
    Choices Check1;
    Field Text1;
    Field Labelien; ///< link to a course page; its tag holds the page number
    Field Image1;   ///< the picture left of the link
    Field Icovideo; ///< leads to a course page with a video
};

/// All that comes of drawing a text: whoever shows a page needs nothing else of it.
struct DrawnPage {
    page::Recording recording;
    LinkTable links;     ///< of a course page on screen; empty otherwise
    AnswerFields fields; ///< of a question; all hidden otherwise
    /// The links that were printed as parts of the text, where no control can stand: on paper,
    /// which may be a file in which they can be followed.
    std::vector<page::LinkArea> printedLinks;

    QString title;                    ///< of the title given, what the title band has room for
    std::optional<QString> caption;   ///< of the main window, where the page asks for one
    std::optional<QString> videoPage; ///< the page's video, where it names one

    /// Height reached, in whole twips; 0 on paper.
    std::int32_t hauteurPage = 0;
    /// Heights that the surfaces were given, in pixels, in the order of SurfaceId; 0 for those that
    /// were given none.
    std::array<double, page::kSurfaces> heightsPx{};
    double heightPx(page::SurfaceId surface) const {
        return heightsPx[static_cast<std::size_t>(surface)];
    }

    /// The pen as the drawing left it.
    struct Pen {
        page::SurfaceId surface = page::SurfaceId::PictureTexte;
        QPointF place; ///< twips
        page::Font font;
        QRgb ink = 0xff000000;
    } end;

    /// For each operation, in their order, the line of the source that it comes from.
    std::vector<std::int32_t> lines;
    /// The line of an operation, from 1, each up to a CR LF; 0 for what comes from no line: the
    /// title, and whatever was added after the drawing.
    int lineOf(std::size_t operation) const {
        return operation < lines.size() ? lines[operation] : 0;
    }
};

} // namespace markup
