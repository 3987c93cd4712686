#pragma once

#include "page/field_view.h"

namespace look {

/// What shows the answer controls of a question in files: drawings of our own, painted as curves at
/// the size that a device asks for.
page::FieldPictures fieldPictures();

} // namespace look
