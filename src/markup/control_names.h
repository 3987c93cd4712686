#pragma once

#include "page/recording.h"

#include <QString>

namespace markup {

// What the page language calls the places that it draws on and the controls that it places, in
// whatever window.

/// "PictureTEXTE", "PICTUREILLUS", "titre", "Picture2" or "printer".
QString surfaceName(page::SurfaceId surface);

/// "Labelien" or "Imagelien".
QString controlName(page::LinkControl control);

/// "Option1", "Check1", "Text1", "Labelien", "Image1" or "Icovideo".
QString controlName(page::FieldControl control);

} // namespace markup
