#pragma once

#include "search/page_slice.h"
#include "search/searchable_pages.h"
#include "search/slice_reader.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace search {

/// The slices of a course, from memory as far as they are there. The copy begins with the first
/// records and has no gap: none is kept behind one for which there was no room.
class SearchablePages::Copy {
public:
    /// The copy takes `mostBytes` at most.
    Copy(SliceReader reader, std::size_t mostBytes);

    SliceReader& reader() { return reader_; }
    std::size_t bytes() const { return bytes_; }

    /// What to search, until the next call.
    struct Searched {
        const PageSlice* slice;
        const FoldedText* sources; ///< the slice's, or the same without accents
    };
    /// The slice of that index, whose first record is at that position; nothing at the end.
    std::optional<Searched> slice(std::size_t index, int first, bool ignoreAccents);

private:
    struct CachedSlice {
        PageSlice slice;
        std::optional<FoldedText> plain; ///< made when it is first asked for, if there is room
    };

    bool reserve(std::size_t bytes);
    bool keepRead();
    const FoldedText& withoutAccents(CachedSlice& cached);

    SliceReader reader_;
    std::size_t mostBytes_;
    std::size_t bytes_ = 0;
    bool isFull_ = false;
    std::vector<CachedSlice> cached_;
    // The slice just read and its like without accents, in memory that is used again and again.
    PageSlice read_;
    FoldedText plain_;
};

} // namespace search
