#pragma once

#include "jet/database.h"
#include "search/page_search.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace search {

/// A record of "cours", as far as it matters here.
struct Record {
    jet::Value number;
    jet::Value titre;
    bool moteur = true;
    jet::Value fpc;
};

/// A course database, in memory.
struct Course {
    explicit Course(const std::vector<Record>& records, std::u16string_view table = u"cours");

    jet::Database database() const;

    std::vector<std::uint8_t> bytes;
};

/// Records with these sources, which take part in the search, without titles.
std::vector<Record> withSources(const std::vector<std::u16string>& sources);

/// Positions of the pages found, in their order, once the search is over.
std::vector<int> positions(PageSearch& search);
std::vector<int> found(SearchablePages& pages, const Query& query);

} // namespace search
