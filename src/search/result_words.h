#pragma once

#include <QString>

#include <cstddef>

namespace search {

/// What came of a search, for who reads it. A share that has gone must not pass for a course
/// without the word.
struct SearchResult {
    std::size_t pages = 0;
    std::size_t hidden = 0; ///< those of them on which nobody reads the words
    bool isCourseRead = true;
};

/// The notice that no page was found.
QString noticeOfNone(bool isCourseRead);

/// How many were found; short enough for the line that it stands on.
QString resultWords(const SearchResult& result);

} // namespace search
