#pragma once

#include "format.h"
#include "jet/database.h"

#include <cstdint>
#include <vector>

namespace fuzz {

// What the formats that are databases have in common.

inline std::vector<std::uint8_t> bytesOf(Input input) {
    const auto* const first = reinterpret_cast<const std::uint8_t*>(input.data());
    return {first, first + input.size()};
}

/// A failure has a sentence: whoever sees it is told something.
inline void requireWords(const jet::Failure& failure) {
    require(!failure.sentence.empty(), "a failure has a sentence");
}

/// Those of the tests, and small ones with all that courses have.
inline const std::vector<SeedPlace> kDatabaseSeeds{{"tests/jet/samples", ".mdb"},
                                                   {"fuzz/corpus/database", ".mdb"}};
/// Bytes of a Jet 3 page; a page of Jet 4 is two.
inline constexpr std::size_t kDatabasePage = 2048;

/// Kinds of page, signs of moved and deleted rows, of long values and of maps, types of columns,
/// names the catalog is searched for (docs/jet-format.md).
inline const std::vector<std::string_view> kDatabaseWords{
    {"\x01\x01", 2},         {"\x02\x01", 2},     {"\x03\x01", 2},     {"\x04\x01", 2},
    {"\x05\x01", 2},         {"\0\x40", 2},       {"\0\x80", 2},       {"\0\xC0", 2},
    {"\0\0\0\x80", 4},       {"\0\0\0\x40", 4},   {"LVAL", 4},         {"\xFF\xFE", 2},
    {"\x01\0\0\0\0", 5},     {"M\0S\0y\0s\0", 8}, {"MSysObjects", 11}, {"\xFF\xFF\xFF\x7F", 4},
    {"\xFF\xFF\xFF\xFF", 4}, {"\x0C", 1},         {"\x10", 1}};

} // namespace fuzz
