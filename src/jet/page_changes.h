#pragma once

#include "jet/byte_writer.h"
#include "jet/page_sink.h"
#include "jet/page_source.h"
#include "jet/result.h"

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace jet {

/// Pages as they are to become, gathered in memory and then written in an order that keeps the file
/// readable after each of them: pages of a lower rank are on the disk before the first of a higher
/// rank is written.
class PageChanges {
public:
    explicit PageChanges(PageSource& source) : source_(&source), pageCount_(source.pageCount()) {}

    PageSource& source() { return *source_; }
    const Format& format() const { return source_->format(); }
    /// Pages added included.
    std::uint32_t pageCount() const { return pageCount_; }

    /// A page as it is to become; empty when there is none of that number. Good until the next
    /// call.
    Bytes page(std::uint32_t number);
    /// The same, to be changed; nullptr when there is none. It keeps the lowest rank it is given.
    PageImage* edit(std::uint32_t number, int rank);
    /// Replaces a page of the file, or one that add() gave the number of.
    void put(std::uint32_t number, PageImage image, int rank);
    /// Number of a page past the end, to be put(); nothing once the format's limit is reached.
    std::optional<std::uint32_t> add();

    /// Writes all that is to become something else. When a write fails, those before it are taken
    /// back, last one first, as far as the file lets itself be written, so that it is as it was.
    Result<void> commit(PageSink& sink);

private:
    struct Change {
        int rank;
        PageImage before; ///< empty for a page that is added
        PageImage image;
    };

    Result<void> writeAll(PageSink& sink, std::vector<std::uint32_t>& written);
    Result<void> write(std::uint32_t number, PageImage image, PageSink& sink) const;
    void takeBack(const std::vector<std::uint32_t>& written, PageSink& sink);
    PageImage copyOf(std::uint32_t number);

    PageSource* source_;
    std::uint32_t pageCount_;
    std::map<std::uint32_t, Change> changes_;
    Page kept_; ///< that page() gave out last
};

} // namespace jet
