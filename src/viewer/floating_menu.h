#pragma once

#include "markup/drawn_page.h"

#include <QMenu>

namespace viewer {

/// The floating menu window: its popup menu `flottant` with the ten entries `choixflot`, of which
/// those with a caption show. It ends when the popup closes. The data of an entry is its target.
class FloatingMenu : public QMenu {
public:
    /// `entries` is null for a menu number outside the table: nothing shows in the menu then, as
    /// in one without entries.
    FloatingMenu(const markup::LinkTable::Menu* entries, QWidget* parent);
};

} // namespace viewer
