#pragma once

#include "look/interface_font.h"
#include "look/palette.h"

#include <QLabel>

namespace common {

/// Gap of the grid on which the controls of a module stand, in pixels.
inline constexpr int kGap = 8;

struct LabelLook {
    int pixels = look::kLabelPx;
    look::Weight weight = look::Weight::Regular;
    QRgb ink = look::kInk;
};

/// A label for words as they are, whatever signs they hold.
QLabel* plainLabel(const QString& words, const LabelLook& look = {});

/// The same over as many lines as they take.
QLabel* paragraph(const QString& words, const LabelLook& look = {});

/// The heading of a group of controls.
QLabel* heading(const QString& words);

} // namespace common
