#pragma once

#include "jet/page_changes.h"
#include "jet/result.h"

#include <cstdint>
#include <vector>

namespace jet {

/// Finds pages for new content: those that RowChange emptied once, then those past the end of the
/// file. Other pages that the map of free pages offers are left alone: in a damaged file that map
/// may name pages whose content is still needed, whereas an emptied one has none.
class PageTaker {
public:
    explicit PageTaker(PageChanges& changes) : changes_(&changes) {}

    /// A page nobody else has, to be put() by the caller.
    Result<std::uint32_t> take();
    /// All pages given out so far; the map of free pages still has to learn of them.
    const std::vector<std::uint32_t>& taken() const { return taken_; }

private:
    void listEmptied();

    PageChanges* changes_;
    bool listed_ = false;
    std::vector<std::uint32_t> emptied_; ///< lowest number last
    std::vector<std::uint32_t> taken_;
};

} // namespace jet
