#pragma once

#include "authoring/positions.h"

#include <QString>

#include <optional>

namespace authoring {

/// Where a link of a Markdown page leads: "page:12", "exo:1", "module:23", "module:7/1",
/// "commande:".
struct Target {
    enum class Kind { Page, Test, Module, Order };
    Kind kind = Kind::Page;
    int number = 0;

    /// "PAG012", "EXO001", "EXE230", "EXE071", "BDC000".
    QString code() const;
};

/// A fault, and nothing, for other targets.
std::optional<Target> readTarget(const QString& target, std::size_t at, Faults& faults);

/// The key of "symbole:ME" and of "menu:ME", two ASCII characters; nothing when the target starts
/// with another word. A fault, and "LK", the sign of a link, for a key that is none.
std::optional<QString> readKey(const QString& target, QStringView word, std::size_t at,
                               Faults& faults);

} // namespace authoring
