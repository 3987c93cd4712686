#pragma once

#include "search/query.h"
#include "search/text_matcher.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace search {

class SearchablePages;

/// A page that holds what was looked for.
struct FoundPage {
    int position = 0;        ///< of its record, from 0
    std::int32_t number = 0; ///< fixed page number ("Numeropage"); 0 when the record has none
    std::u16string title;    ///< "titre"; empty for NULL
    /// What makes it a page found stands, in part at least, in directives only, as in the name of
    /// a picture: nobody will read it on the page.
    bool hidden = false;

    bool operator==(const FoundPage&) const = default;
};

/// One search through the pages of a course, in slices, so that a window can live between them:
///
///     PageSearch search(pages, {queryWords(typed), allWords, ignoreAccents});
///     while (search.advance())
///         progressBar.setValue(search.position());
///
/// Words are found anywhere in the raw page source, inside directives and inside other words too;
/// letter case never counts, accents do unless they are to be ignored. The record at position 0 is
/// never examined, and pages without their "moteur" flag are passed over, as is a record whose
/// source cannot be read. Dropping the search at any point is fine.
class PageSearch {
public:
    /// `pages` must outlive the search. Searches may follow each other or go on side by side.
    PageSearch(SearchablePages& pages, const Query& query);

    /// Examines the next slice, about 256 KB of page source or 1,024 records: well below a
    /// millisecond when the copy has it, about one when it comes from the file (one long page can
    /// take more). False when there was none left.
    bool advance();

    /// Position of the last record examined so far; 0 before the first slice, and
    /// SearchablePages::lastPosition() (or 0, when that is -1) at the end.
    int position() const { return position_; }

    /// The pages found so far, in the order of their records, each once.
    const std::vector<FoundPage>& found() const { return found_; }

private:
    SearchablePages& pages_;
    std::vector<std::string> words_; ///< folded
    bool allWords_;
    bool ignoreAccents_;
    std::optional<TextMatcher> matcher_; ///< from the first slice on
    std::size_t slice_ = 0;              ///< the next one
    int next_ = 0;                       ///< position of its first record
    int position_ = 0;
    std::vector<FoundPage> found_;
};

} // namespace search
