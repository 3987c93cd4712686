#include "search/folded_copy.h"

#include <utility>

namespace search {

SearchablePages::Copy::Copy(SliceReader reader, std::size_t mostBytes)
    : reader_(std::move(reader)), mostBytes_(mostBytes) {}

std::optional<SearchablePages::Copy::Searched>
SearchablePages::Copy::slice(std::size_t index, int first, bool ignoreAccents) {
    if (index >= cached_.size()) {
        if (!reader_.read(first, read_))
            return std::nullopt;
        if (!keepRead()) {
            if (ignoreAccents)
                plain_.assignWithoutAccents(read_.sources);
            return Searched{&read_, ignoreAccents ? &plain_ : &read_.sources};
        }
    }
    CachedSlice& cached = cached_[index];
    return Searched{&cached.slice, ignoreAccents ? &withoutAccents(cached) : &cached.slice.sources};
}

bool SearchablePages::Copy::reserve(std::size_t bytes) {
    if (bytes > mostBytes_ - bytes_)
        return false;
    bytes_ += bytes;
    return true;
}

bool SearchablePages::Copy::keepRead() {
    isFull_ = isFull_ || !reserve(read_.copySize());
    if (!isFull_)
        cached_.push_back({read_.copy(), std::nullopt});
    return !isFull_;
}

const FoldedText& SearchablePages::Copy::withoutAccents(CachedSlice& cached) {
    if (cached.plain)
        return *cached.plain;
    plain_.assignWithoutAccents(cached.slice.sources);
    if (!reserve(plain_.copySize()))
        return plain_;
    return cached.plain.emplace(plain_.copy());
}

} // namespace search
