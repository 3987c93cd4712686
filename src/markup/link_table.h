#pragma once

#include "page/recording.h"
#include "text/bounded_array.h"

#include <QString>

namespace markup {

/// The links that a page has placed: the two arrays of link controls and the floating menus.
/// Whoever shows a page empties the table first.
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

} // namespace markup
