#pragma once

#include <QString>

#include <optional>

namespace authoring {

/// The character of an entity, "&nbsp;" or "&#233;"; nothing for one that is not read: of those
/// with names only the few for signs that keyboards lack.
std::optional<QString> entityText(const QString& entity);

} // namespace authoring
