#pragma once

#include "platform/field_view.h"

namespace platform::look {

/// What shows the answer controls of a question in files: drawings of our own, painted as curves at
/// the size that a device asks for.
FieldPictures fieldPictures();

} // namespace platform::look
