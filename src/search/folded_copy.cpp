#include "search/folded_copy.h"

#include <utility>

namespace search {

CoursePages::Copy::Copy(SliceReader reader, std::size_t mostBytes)
    : reader_(std::move(reader)), mostBytes_(mostBytes) {}

std::optional<CoursePages::Copy::Searched> CoursePages::Copy::slice(std::size_t index, int first,
                                                                    bool ignoreAccents) {
    if (index >= kept_.size()) {
        if (!reader_.read(first, read_))
            return std::nullopt;
        if (!keepRead()) {
            if (ignoreAccents)
                plain_.assignWithoutAccents(read_.sources);
            return Searched{&read_, ignoreAccents ? &plain_ : &read_.sources};
        }
    }
    Kept& kept = kept_[index];
    return Searched{&kept.slice, ignoreAccents ? &withoutAccents(kept) : &kept.slice.sources};
}

bool CoursePages::Copy::reserve(std::size_t bytes) {
    if (bytes > mostBytes_ - bytes_)
        return false;
    bytes_ += bytes;
    return true;
}

bool CoursePages::Copy::keepRead() {
    isFull_ = isFull_ || !reserve(read_.copySize());
    if (!isFull_)
        kept_.push_back({read_.copy(), std::nullopt});
    return !isFull_;
}

const FoldedText& CoursePages::Copy::withoutAccents(Kept& kept) {
    if (kept.plain)
        return *kept.plain;
    plain_.assignWithoutAccents(kept.slice.sources);
    if (!reserve(plain_.copySize()))
        return plain_;
    return kept.plain.emplace(plain_.copy());
}

} // namespace search
