#pragma once

#include "authoring/positions.h"

#include <string_view>
#include <vector>

namespace authoring {

/// Which bytes of a source came out of reading it, so that no word is lost unseen.
class Coverage {
public:
    explicit Coverage(std::string_view source) : source_(source), read_(source.size(), false) {}

    void mark(std::size_t offset, std::size_t size);

    /// Cells beyond the last column, definitions that no link uses and words after the opening of a
    /// listing are passed over by Markdown's own rules. Nobody would miss them before the page is
    /// read.
    void nameUnread(Faults& faults);

private:
    void markUsedDefinitions();

    std::string_view source_;
    std::vector<bool> read_; ///< by byte
};

} // namespace authoring
