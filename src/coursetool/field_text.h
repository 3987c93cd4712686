#pragma once

#include "coursetool/tables.h"
#include "jet/value.h"

#include <optional>
#include <string>

namespace coursetool {

/// A value of a database as a source gives it.
struct FieldText {
    std::optional<std::string> toml; ///< absent for NULL and for what a source cannot hold
    std::string complaint;           ///< French; empty when nothing is lost
};

// Complaints of front matters and of bodies alike.
inline constexpr char kNoText[] = "la valeur n’est pas un texte, elle n’est pas reprise";
inline constexpr char kHasNoCharacters[] =
    "un code qui n’est pas un caractère est remplacé par U+FFFD";

/// A front matter field. What `build` would refuse is written all the same, and told: the author,
/// not the tool, decides what becomes of it.
FieldText toToml(const FieldRule& rule, const jet::Value& value);

/// Whether a column of this type holds the values that the rule's type holds: numbers of any kind
/// for a number, Text or Memo for a text.
bool isOfSameKind(jet::ColumnType type, const FieldRule& rule);

/// Whether UTF-8 can carry the text: all surrogates in it are paired.
bool hasOnlyCharacters(std::u16string_view text);

} // namespace coursetool
