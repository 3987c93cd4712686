#pragma once

#include "exercises/choices.h"
#include "page/picture.h"

#include <memory>

namespace exercises {

/// Name of the drawing of a mark: a round check mark (`Image3`) or a square cross (`Image5`).
QString markName(Mark mark);

/// A mark as a picture that questions can be painted with, crisp at every size.
std::shared_ptr<const page::Picture> markPicture(Mark mark);

} // namespace exercises
