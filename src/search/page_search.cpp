#include "search/page_search.h"

#include "search/folded_copy.h"
#include "search/visible_words.h"

#include <algorithm>

namespace search {

namespace {

/// How much of the first slice tells which bytes are rare in this course.
constexpr std::size_t kSampleBytes = 16 * 1024;

} // namespace

PageSearch::PageSearch(SearchablePages& pages, const Query& query)
    : pages_(pages), allWords_(query.allWords), ignoreAccents_(query.ignoreAccents) {
    for (const std::u16string& word : query.words)
        words_.push_back(foldedWord(word, ignoreAccents_));
}

bool PageSearch::advance() {
    if (words_.empty())
        return false;
    const auto searched = pages_.copy_->slice(slice_, next_, ignoreAccents_);
    if (!searched)
        return false;
    const PageSlice& slice = *searched->slice;
    if (!matcher_)
        matcher_.emplace(words_, allWords_, searched->sources->bytes().substr(0, kSampleBytes));
    for (const std::size_t match : matcher_->matches(*searched->sources)) {
        const PageSlice::Page& page = slice.pages[match];
        found_.push_back({page.position, page.number, std::u16string(slice.title(match)),
                          !areVisible(words_, allWords_, searched->sources->text(match))});
    }
    ++slice_;
    next_ = slice.next;
    position_ = slice.next - 1;
    return true;
}

} // namespace search
