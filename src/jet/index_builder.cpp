#include "jet/index_builder.h"

#include "jet/byte_writer.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace jet {

namespace {

// Index page. Nothing is saved on a common prefix: these trees are small.
constexpr std::size_t kFreeBytesAt = 2;
constexpr std::size_t kDefinitionAt = 4;
constexpr std::size_t kPreviousAt = 12;
constexpr std::size_t kNextAt = 16;
constexpr std::size_t kMaskAt = 27;
constexpr std::size_t kEntriesAt = 0x1E0;
constexpr std::size_t kEntryArea = kJet4.pageSize - kEntriesAt;
constexpr std::size_t kRowBytes = 4;

// Key codes of the General sort order.
constexpr std::uint8_t kNotNull = 0x7F;
constexpr std::array<std::uint8_t, 10> kDigitCodes{0x36, 0x38, 0x3A, 0x3C, 0x3E,
                                                   0x40, 0x42, 0x44, 0x46, 0x48};
constexpr std::array<std::uint8_t, 26> kLetterCodes{
    0x4A, 0x4C, 0x4D, 0x4F, 0x51, 0x53, 0x55, 0x57, 0x59, 0x5B, 0x5C, 0x5E, 0x60,
    0x62, 0x64, 0x66, 0x68, 0x69, 0x6B, 0x6D, 0x6F, 0x71, 0x73, 0x75, 0x76, 0x78};
constexpr std::uint8_t kSpaceCode = 0x07;
constexpr std::array<std::uint8_t, 2> kUnderscoreCode{0x2B, 0x03};
constexpr std::array<std::uint8_t, 2> kTextEnd{0x01, 0x00};

/// The codes of one character, none when they are not known here.
std::span<const std::uint8_t> codesOf(char16_t c) {
    if (c >= u'0' && c <= u'9')
        return std::span(kDigitCodes).subspan(static_cast<std::size_t>(c - u'0'), 1);
    if (c >= u'A' && c <= u'Z')
        return std::span(kLetterCodes).subspan(static_cast<std::size_t>(c - u'A'), 1);
    if (c >= u'a' && c <= u'z')
        return std::span(kLetterCodes).subspan(static_cast<std::size_t>(c - u'a'), 1);
    if (c == u' ')
        return std::span(&kSpaceCode, 1);
    return c == u'_' ? std::span<const std::uint8_t>(kUnderscoreCode)
                     : std::span<const std::uint8_t>();
}

void appendBigEndian(std::uint32_t number, std::size_t size, std::vector<std::uint8_t>& bytes) {
    for (std::size_t i = size; i-- > 0;)
        bytes.push_back(static_cast<std::uint8_t>(number >> (8 * i)));
}

using Entries = std::span<const std::vector<std::uint8_t>>;

/// How many of the entries fit one page.
std::size_t entriesThatFit(Entries entries) {
    std::size_t bytes = 0;
    std::size_t count = 0;
    while (count < entries.size() && bytes + entries[count].size() <= kEntryArea)
        bytes += entries[count++].size();
    return count;
}

std::vector<Entries> splitOverPages(Entries entries) {
    std::vector<Entries> pages;
    do {
        const std::size_t count = entriesThatFit(entries);
        pages.push_back(entries.first(count));
        entries = entries.subspan(count);
    } while (!entries.empty());
    return pages;
}

struct Siblings {
    std::uint32_t previous = 0;
    std::uint32_t next = 0;
};

void writePage(std::uint32_t number, PageType type, std::uint32_t definition, Siblings siblings,
               Entries entries, OutputFile& file) {
    PageImage image(kJet4.pageSize);
    image[0] = static_cast<std::uint8_t>(type);
    image[1] = 1;
    put32(image, kDefinitionAt, definition);
    put32(image, kPreviousAt, siblings.previous);
    put32(image, kNextAt, siblings.next);
    std::size_t end = 0;
    for (const auto& entry : entries) {
        putBytes(image, kEntriesAt + end, entry);
        end += entry.size();
        std::uint8_t& mask = image[kMaskAt + end / 8];
        mask = static_cast<std::uint8_t>(mask | 1 << (end % 8));
    }
    put16(image, kFreeBytesAt, kEntryArea - end);
    file.write(number, image);
}

} // namespace

IndexKey& IndexKey::add(std::int32_t number) {
    bytes_.push_back(kNotNull);
    appendBigEndian(static_cast<std::uint32_t>(number) ^ 0x80000000u, 4, bytes_);
    return *this;
}

IndexKey& IndexKey::add(std::u16string_view text) {
    bytes_.push_back(kNotNull);
    for (const char16_t c : text) {
        const auto codes = codesOf(c);
        bytes_.insert(bytes_.end(), codes.begin(), codes.end());
    }
    bytes_.insert(bytes_.end(), kTextEnd.begin(), kTextEnd.end());
    return *this;
}

bool isIndexable(std::u16string_view text) {
    return std::all_of(text.begin(), text.end(), [](char16_t c) { return !codesOf(c).empty(); });
}

void IndexBuilder::add(const IndexKey& key, RowPointer row) {
    Entry entry = key.bytes();
    appendBigEndian(row.stored(), kRowBytes, entry);
    entries_.push_back(std::move(entry));
}

void IndexBuilder::sort() {
    std::sort(entries_.begin(), entries_.end(), [](const Entry& a, const Entry& b) {
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end());
    });
}

std::uint32_t IndexBuilder::differentKeys() {
    sort();
    std::uint32_t count = 0;
    const Entry* previous = nullptr;
    for (const Entry& entry : entries_) {
        if (!previous || !std::equal(entry.begin(), entry.end() - kRowBytes, previous->begin(),
                                     previous->end() - kRowBytes))
            ++count;
        previous = &entry;
    }
    return count;
}

PageSet IndexBuilder::write(std::uint32_t root, std::uint32_t definition, OutputFile& file) {
    sort();
    PageSet owned;
    owned.insert(root);
    std::vector<Entry> level = entries_;
    PageType type = PageType::LeafIndex;
    // Level by level, each with one entry for each page of the level below, until one page is
    // enough: that is the root.
    for (;;) {
        const std::vector<Entries> pages = splitOverPages(level);
        if (pages.size() == 1) {
            writePage(root, type, definition, {}, pages[0], file);
            return owned;
        }
        std::vector<std::uint32_t> numbers(pages.size());
        std::generate(numbers.begin(), numbers.end(), [&file] { return file.allocate(); });
        std::vector<Entry> above;
        for (std::size_t i = 0; i < pages.size(); ++i) {
            const Siblings siblings{i > 0 ? numbers[i - 1] : 0,
                                    i + 1 < pages.size() ? numbers[i + 1] : 0};
            writePage(numbers[i], type, definition, siblings, pages[i], file);
            owned.insert(numbers[i]);
            above.push_back(pages[i].back());
            appendBigEndian(numbers[i], 4, above.back());
        }
        level = std::move(above);
        type = PageType::InnerIndex;
    }
}

} // namespace jet
