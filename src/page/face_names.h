#pragma once

#include "page/font.h"

#include <QString>

namespace page {

// The faces that pages ask for, in any letter case. Which families stand in for them, the font book
// knows.
inline const QString kTextFace = Font{}.face; ///< "Arial"
inline const QString kBookFace = QStringLiteral("Times new roman");
inline const QString kSymbolFace = QStringLiteral("Symbol");
inline const QString kWingdingsFace = QStringLiteral("Wingdings");
inline const QString kComicFace = QStringLiteral("Comic Sans MS");

} // namespace page
