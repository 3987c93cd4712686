#pragma once

#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace orderform {

/// In the order of the form.
enum class Field { Surname, FirstName, Address, AddressMore, Postcode, Town, Country, Quantity };
inline constexpr std::size_t kFieldCount = 8;
inline constexpr std::array<Field, kFieldCount> kFields{
    Field::Surname,  Field::FirstName, Field::Address, Field::AddressMore,
    Field::Postcode, Field::Town,      Field::Country, Field::Quantity};

/// What a field is called: "Nom", "Code postal".
QString fieldName(Field field);

/// Longest text of a field, in characters: what the post takes on a line of an address (French
/// standard NF Z10-011).
inline constexpr qsizetype kLongestText = 38;

/// What was typed into the form.
struct Order {
    std::array<QString, kFieldCount> texts;

    QString& operator[](Field field) { return texts[static_cast<std::size_t>(field)]; }
    const QString& operator[](Field field) const { return texts[static_cast<std::size_t>(field)]; }
};

/// How the form opens: one copy, to France.
Order newOrder();

/// The texts without blanks around them, with single ones inside, without characters that cannot be
/// seen and with accented letters in one piece; a French postcode has no blanks.
Order tidied(const Order& order);

/// What is wrong with a field of a tidied order, in French and short, without full stop. Empty when
/// nothing is.
QString faultOf(const Order& order, Field field);

/// The fields of a tidied order with a fault, in the order of the form.
std::vector<Field> faultyFields(const Order& order);

/// The number of copies of a tidied order, kFewestCopies to kMostCopies.
std::optional<int> copies(const Order& order);

} // namespace orderform
