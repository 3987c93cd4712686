#pragma once

#include <QStringView>

namespace markup {

/// A number in the last characters of a directive: how many they are, and from which value to which
/// it does something. Fewer characters take in letters of the keyword and read as 0.
struct Columns {
    qsizetype count = 0;
    double lowest = 0;
    double highest = 0;
    bool isFraction = false; ///< may have a point
};

inline constexpr Columns kFontSize{2, 1, 99}; ///< points
inline constexpr Columns kInkNumber{3, 0, 14};
inline constexpr Columns kFaceNumber{2, 0, 4};
inline constexpr Columns kPaletteNumber{2, 0, 15};
inline constexpr Columns kFillStyle{2, 0, 99};
inline constexpr Columns kTintStyle{1, 1, 6};
inline constexpr Columns kLineFactor{4, 0.01, 9999, true};
inline constexpr Columns kPlacePx{3, -99, 999};
inline constexpr Columns kLengthPx{3, 0, 999};

// What "OBJ" is followed by.
inline constexpr QStringView kTitleName = u"TIT";
inline constexpr QStringView kIllustrationName = u"ILLUS";
inline constexpr QStringView kColumnName = u"PRINCIPAL";
inline constexpr QStringView kHeightName = u"TAILLE";

/// Where "RELIEF" has its width, counted from 1; its colour is a kPaletteNumber.
inline constexpr qsizetype kShadowWidthAt = 7;

// Where "TAB" has what, counted from 1.
inline constexpr qsizetype kCellLeftAt = 4;
inline constexpr qsizetype kCellRightAt = 7;
inline constexpr qsizetype kCellNumberAt = 10;
inline constexpr qsizetype kCellEdgeLength = 3;
inline constexpr qsizetype kCellNumberLength = 2;

/// Length of a key of the image list.
inline constexpr qsizetype kKeyLength = 2;

/// Width and height of a sized picture, together, at the directive's end.
inline constexpr qsizetype kPictureSizeLength = 6;

} // namespace markup
