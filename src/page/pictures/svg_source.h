#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace page {

/// Most attributes of one element. Drawing programs write a dozen; the time for reading them grows
/// with their square.
inline constexpr int kMaxSvgAttributes = 256;

/// The text of an XML file, by its byte order mark or the encoding that it names, UTF-8 without
/// either. Nothing when it names an encoding that is not known, or when what stands between two of
/// its tags' beginnings could be more than kMaxSvgAttributes attributes. Takes time in proportion
/// to the file, which reading it as XML does not.
std::optional<QString> svgSource(const QByteArray& file);

} // namespace page
