#pragma once

#include <QByteArray>
#include <QSize>

#include <optional>

namespace output {

/// Size in pixels of a JPEG file that a PDF document can take as it stands: 8 bits, grey or colour,
/// of the kinds that its readers decode. Nothing for others, and for what is no JPEG file.
std::optional<QSize> jpegSize(const QByteArray& file);

} // namespace output
