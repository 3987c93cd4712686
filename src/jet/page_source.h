#pragma once

#include "jet/byte_source.h"
#include "jet/bytes.h"
#include "jet/format.h"
#include "jet/result.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace jet {

/// One page of a database. Its bytes stay readable as long as the object lives.
struct Page {
    std::shared_ptr<const std::uint8_t[]> block;
    Bytes bytes;
    std::uint32_t number = 0;

    PageType type() const { return static_cast<PageType>(bytes.u8(0)); }
    std::uint32_t owner() const { return bytes.u32(kPageOwnerAt); }
};

/// Hands out the pages of a database, keeping the latest ones. Pages asked for one after the other
/// are read in larger and larger blocks, others one by one, so that neither a walk through the
/// whole file nor a few scattered pages cost more than they must.
class PageSource {
public:
    /// What the header page says of the file.
    struct Header {
        const Format* format = nullptr;
        std::uint32_t pageKey = 0; ///< 0: pages are not encoded
        std::uint16_t codePage = 0;
    };

    /// `name`, UTF-8, is what failures call the database.
    static Result<std::shared_ptr<PageSource>> open(std::unique_ptr<ByteSource> source,
                                                    std::string_view name);

    const Format& format() const { return *header_.format; }
    const Header& header() const { return header_; }
    /// Whole pages; what follows the last one is no page.
    std::uint32_t pageCount() const { return pageCount_; }
    std::uint64_t fileSize() const { return std::uint64_t{pageCount_} * format().pageSize; }

    /// Nothing past the end of the file, or when the system cannot read it.
    std::optional<Page> page(std::uint32_t number);

private:
    static constexpr std::size_t kBlockBytes = 64 * 1024;
    /// All in all 1 MB at most, however large the file.
    static constexpr std::size_t kBlocks = 16;
    /// Full blocks that a walk takes in turn: memory that was written a moment ago is still in the
    /// processor's caches, and what was read before the walk stays (`bench/run jet`).
    static constexpr std::ptrdiff_t kWalkBlocks = 4;

    struct Block {
        std::uint32_t first = 0;
        std::uint32_t count = 0; ///< pages in it, 0 when it was never filled
        std::uint64_t lastUse = 0;
        std::shared_ptr<std::uint8_t[]> bytes;

        bool contains(std::uint32_t number) const {
            return number >= first && number - first < count;
        }
    };

    PageSource(std::unique_ptr<ByteSource> source, const Header& header);
    const Block* cached(std::uint32_t number) const;
    std::uint32_t pagesToRead(std::uint32_t number) const;
    std::uint32_t largestBlock() const;
    Block& blockFor(std::uint32_t count);
    bool fill(Block& block, std::uint32_t first, std::uint32_t count);
    Page pageOf(const Block& block, std::uint32_t number) const;

    std::unique_ptr<ByteSource> source_;
    Header header_;
    std::uint32_t pageCount_;
    std::uint64_t clock_ = 0;
    std::array<Block, kBlocks> blocks_;
    std::size_t latest_ = 0; ///< block of the page asked for last
};

} // namespace jet
