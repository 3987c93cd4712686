#pragma once

#include "jet/named_pages.h"
#include "jet/page_changes.h"
#include "jet/result.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace jet {

/// Finds pages for new content: those that RowChange emptied once, those that a change cut short
/// has lost, then those past the end of the file. Other pages that the map of free pages offers are
/// left alone: in a damaged file that map may name pages whose content is still needed, whereas an
/// emptied one has none. A page that a row names is taken by nobody, wherever it is.
class PageTaker {
public:
    explicit PageTaker(PageChanges& changes) : changes_(&changes) {}

    /// A page nobody else has, to be put() by the caller.
    Result<std::uint32_t> take();
    /// All pages given out so far, and those past the end that were passed over; the map of free
    /// pages still has to learn of them.
    const std::vector<std::uint32_t>& taken() const { return taken_; }

private:
    void list();
    std::optional<std::uint32_t> addPage();

    PageChanges* changes_;
    std::optional<NamedPages> named_;      ///< once it was needed
    std::vector<std::uint32_t> available_; ///< lowest number last
    std::vector<std::uint32_t> taken_;
};

} // namespace jet
