#pragma once

#include "page/recording.h"

#include <QString>

namespace authoring::check {

// Which line of a source a drawing operation comes from. A recording does not tell; so a directive
// that draws nothing and changes nothing, but whose failure is recorded, follows each line.

/// `source` with such a mark after every line.
QString withLineMarks(const QString& source);

/// Whether the operation is the mark that ends a line.
bool isLineMark(const page::Operation& operation);

} // namespace authoring::check
