#pragma once

#include "jet/database.h"
#include "jet/problems.h"
#include "jet/result.h"

#include <cstddef>
#include <memory>

namespace search {

/// Most memory, in bytes, that the folded copy of the pages may take: more than 100,000 pages of
/// 1.6 KB, and little beside what an ordinary machine has. A course of 600 pages takes 1 MB.
inline constexpr std::size_t kFoldedCopyBytes = 256 * 1024 * 1024;

/// The pages of a course, opened for searching: the table "cours" and a copy of the page sources,
/// ready for comparing, that grows during the first search. Later searches read the file only for
/// pages that the copy has no room for. One window keeps one such object for as long as it lives;
/// the copy goes with it. Not to be used from two threads at once.
class SearchablePages {
public:
    /// Opens the table of a course's database, which need not be kept; nothing but the table's
    /// definition is read. The failure, a French sentence, says that there is no such table or
    /// column ("fpc", "moteur"), or what of it is damaged. With `mostBytes` 0 no copy is kept,
    /// which is for a single search.
    static jet::Result<SearchablePages> open(const jet::Database& database,
                                             std::size_t mostBytes = kFoldedCopyBytes);

    SearchablePages(SearchablePages&&) noexcept;
    SearchablePages& operator=(SearchablePages&&) noexcept;
    ~SearchablePages();

    /// Position of the last record, counted from 0; -1 when there are none. The first call takes a
    /// look at every page of the table, some milliseconds for 100,000 records.
    int lastPosition();

    /// What was damaged in the records read so far, and is passed over by every search.
    jet::Problems problems() const;

    /// Bytes that the copy takes now, `mostBytes` at most.
    std::size_t copyBytes() const;

private:
    friend class PageSearch;
    class Copy;
    explicit SearchablePages(std::unique_ptr<Copy> copy);

    std::unique_ptr<Copy> copy_;
};

} // namespace search
