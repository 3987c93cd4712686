#include "jet/page_source.h"

#include "jet/apart.h"
#include "jet/cipher.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

namespace jet {

namespace {

// Header page, the same in both formats as far as it is read here.
constexpr std::size_t kHeaderBytes = 0x98;
constexpr std::size_t kEngineNameAt = 0x04;
constexpr char kEngineName[] = "Standard Jet DB";
constexpr char kLaterEngineName[] = "Standard ACE DB";
constexpr std::size_t kVersionAt = 0x14;
constexpr std::size_t kMaskAt = 0x18;
constexpr std::size_t kMaskLengthJet3 = 126;
constexpr std::size_t kMaskLengthJet4 = 128;
constexpr std::size_t kCodePageAt = 0x3C;
constexpr std::size_t kPageKeyAt = 0x3E;

bool hasEngineName(Bytes header, const char* name) {
    return std::memcmp(header.data() + kEngineNameAt, name, std::strlen(name) + 1) == 0;
}

/// The kind of failure and its reason, or the header.
struct ParsedHeader {
    PageSource::Header header;
    Failure::Kind kind = Failure::Kind::NotADatabase;
    const char* fault = nullptr;
};

ParsedHeader parseHeader(std::array<std::uint8_t, kHeaderBytes>& stored) {
    const Bytes header(stored);
    const std::uint32_t version = header.u32(kVersionAt);
    if (hasEngineName(header, kLaterEngineName) ||
        (hasEngineName(header, kEngineName) && version > 1))
        return {{}, Failure::Kind::Unsupported, "les fichiers de 2007 et après ne sont pas lus"};
    if (!hasEngineName(header, kEngineName))
        return {{}, Failure::Kind::NotADatabase, "ce n’est pas une base Jet (page d’en-tête)"};

    const std::size_t masked = version == 0 ? kMaskLengthJet3 : kMaskLengthJet4;
    applyRc4(kHeaderMaskKey, std::span(stored).subspan(kMaskAt, masked));
    return {{.format = version == 0 ? &kJet3 : &kJet4,
             .pageKey = header.u32(kPageKeyAt),
             .codePage = header.u16(kCodePageAt)}};
}

} // namespace

Result<std::shared_ptr<PageSource>> PageSource::open(std::unique_ptr<ByteSource> source,
                                                     std::string_view name) {
    std::array<std::uint8_t, kHeaderBytes> stored{};
    if (!source->read(0, stored))
        return databaseFailure(Failure::Kind::NotADatabase, name,
                               "le fichier est plus court qu’un en-tête");
    const ParsedHeader parsed = parseHeader(stored);
    if (parsed.fault)
        return databaseFailure(parsed.kind, name, parsed.fault);
    if (source->size() / parsed.header.format->pageSize <= kCatalogPage)
        return databaseFailure(Failure::Kind::Damaged, name,
                               "le fichier s’arrête avant son catalogue");
    return std::shared_ptr<PageSource>(new PageSource(std::move(source), parsed.header));
}

PageSource::PageSource(std::unique_ptr<ByteSource> source, const Header& header)
    : source_(std::move(source)), header_(header),
      // Row pointers give a page 24 bits.
      pageCount_(static_cast<std::uint32_t>(
          std::min<std::uint64_t>(source_->size() / header.format->pageSize, 1u << 24))) {}

std::optional<Page> PageSource::page(std::uint32_t number) {
    if (number >= pageCount_)
        return std::nullopt;
    ++clock_;
    if (!blocks_[latest_].contains(number)) {
        const Block* found = cached(number);
        if (!found) {
            const std::uint32_t count = pagesToRead(number);
            Block& block = blockFor(count);
            if (!fill(block, number, count))
                return std::nullopt;
            found = &block;
        }
        latest_ = static_cast<std::size_t>(found - blocks_.data());
    }
    blocks_[latest_].lastUse = clock_;
    return pageOf(blocks_[latest_], number);
}

const PageSource::Block* PageSource::cached(std::uint32_t number) const {
    const auto found = std::find_if(blocks_.begin(), blocks_.end(), [number](const Block& block) {
        return block.contains(number);
    });
    return found == blocks_.end() ? nullptr : &*found;
}

/// One page, or twice as many as last time when the page continues a block.
std::uint32_t PageSource::pagesToRead(std::uint32_t number) const {
    const Block* before = number > 0 ? cached(number - 1) : nullptr;
    const std::uint32_t wanted = before ? before->count * 2 : 1;
    return std::min({wanted, largestBlock(), pageCount_ - number});
}

std::uint32_t PageSource::largestBlock() const {
    return static_cast<std::uint32_t>(kBlockBytes / format().pageSize);
}

/// The oldest block, or the oldest full one when there are enough for a walk.
PageSource::Block& PageSource::blockFor(std::uint32_t count) {
    const auto isFull = [&](const Block& block) { return block.count == largestBlock(); };
    const bool isWalk =
        count == largestBlock() && std::ranges::count_if(blocks_, isFull) >= kWalkBlocks;
    const auto age = [&](const Block& block) {
        return std::pair(isWalk && !isFull(block), block.lastUse);
    };
    return *std::ranges::min_element(blocks_, {}, age);
}

bool PageSource::fill(Block& block, std::uint32_t first, std::uint32_t count) {
    const std::size_t pageSize = format().pageSize;
    block.count = 0;
    if (!block.bytes || block.bytes.use_count() > 1) // somebody still reads its pages
        block.bytes = std::make_shared_for_overwrite<std::uint8_t[]>(kBlockBytes);

    if (!source_->read(std::uint64_t{first} * pageSize, {block.bytes.get(), count * pageSize}))
        return false;
    if (header_.pageKey != 0) {
        for (std::uint32_t i = first == 0 ? 1 : 0; i < count; ++i)
            applyPageKey(header_.pageKey, first + i,
                         std::span(block.bytes.get() + i * pageSize, pageSize));
    }
    block.first = first;
    block.count = count;
    return true;
}

Page PageSource::pageOf(const Block& block, std::uint32_t number) const {
    const std::size_t pageSize = format().pageSize;
    Page page{block.bytes, Bytes(block.bytes.get() + (number - block.first) * pageSize, pageSize),
              number};
    page.bytes = apart(page.bytes, page.block);
    return page;
}

} // namespace jet
