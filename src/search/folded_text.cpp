#include "search/folded_text.h"

#include "search/byte_vectors.h"
#include "text/letters.h"

#include <algorithm>
#include <array>
#include <utility>

namespace search {

namespace {

constexpr char16_t kLastSingle = 0xFF;
constexpr std::size_t kMostPerUnit = 4;
/// Units beyond ASCII that take one byte; in ASCII nothing has an accent.
constexpr std::uint8_t kOneByteAccents = 0x80;
constexpr unsigned kFirstDigit = 'A';
constexpr unsigned kOtherDigits = 0xC0;
/// Units taken one by one before trying many together again.
constexpr std::size_t kOneByOne = 16;

char16_t foldedUnit(char16_t c) {
    return c <= kLastSingle ? foldedLatin(static_cast<std::uint8_t>(c)) : text::lowerCase(c);
}

char* put(char16_t folded, char* to) {
    if (folded <= kLastSingle) {
        *to = static_cast<char>(folded);
        return to + 1;
    }
    to[0] = static_cast<char>(kFirstDigit + (folded >> 12u));
    to[1] = static_cast<char>(kOtherDigits + (folded >> 8u & 0xFu));
    to[2] = static_cast<char>(kOtherDigits + (folded >> 4u & 0xFu));
    to[3] = static_cast<char>(kOtherDigits + (folded & 0xFu));
    return to + kMostPerUnit;
}

/// The unit whose four bytes begin at `from`.
char16_t unitOf(const char* from) {
    const auto digit = [&](int i, unsigned zero) {
        return static_cast<unsigned>(static_cast<std::uint8_t>(from[i])) - zero;
    };
    return static_cast<char16_t>(digit(0, kFirstDigit) << 12 | digit(1, kOtherDigits) << 8 |
                                 digit(2, kOtherDigits) << 4 | digit(3, kOtherDigits));
}

/// A small letter without its accent, and a sign as the keyboard has it: who leaves accents aside
/// does so with typographic apostrophes. Spaces stay what they are, since one ends each text.
char16_t plain(char16_t folded) {
    const char16_t letter = text::plainLetter(folded);
    return letter == u' ' ? folded : letter;
}

std::array<char, 256> plainSingles() {
    std::array<char, 256> plains;
    for (unsigned c = 0; c < plains.size(); ++c)
        plains[c] = static_cast<char>(plain(static_cast<char16_t>(c)));
    return plains;
}

} // namespace

/// The place of the next bytes, with room for that many.
char* FoldedText::room(std::size_t count) {
    if (count > capacity_ - size_) {
        const std::size_t larger = std::max(size_ + count, capacity_ + capacity_ / 2);
        auto bytes = std::make_unique_for_overwrite<char[]>(larger);
        std::copy_n(bytes_.get(), size_, bytes.get());
        bytes_ = std::move(bytes);
        capacity_ = larger;
    }
    return bytes_.get() + size_;
}

void FoldedText::unit(char16_t unit) {
    char* const to = room(kMostPerUnit);
    size_ += static_cast<std::size_t>(put(foldedUnit(unit), to) - to);
}

void FoldedText::ascii(const std::uint8_t* bytes, std::size_t count) {
    char* const to = room(count);
    for (std::size_t i = 0; i < count; ++i)
        to[i] = static_cast<char>(foldedLatin(bytes[i]));
    size_ += count;
}

void FoldedText::wide(jet::Bytes units) {
    while (units.size() >= 2) {
        const std::size_t folded = foldLatin(units, room(units.size() / 2));
        size_ += folded;
        units = units.from(2 * folded);
        // What stopped it, or the end, one by one.
        const jet::Bytes rest = units.first(2 * kOneByOne);
        for (std::size_t at = 0; rest.has(at, 2); at += 2)
            unit(rest.u16(at));
        units = units.from(rest.size());
    }
}

void FoldedText::endText() {
    *room(1) = ' ';
    ends_.push_back(++size_);
}

void FoldedText::clear() {
    size_ = 0;
    ends_.clear();
}

FoldedText FoldedText::copy() const {
    FoldedText copied;
    copied.ends_ = ends_;
    copied.bytes_ = std::make_unique_for_overwrite<char[]>(size_);
    std::copy_n(bytes_.get(), size_, copied.bytes_.get());
    copied.size_ = copied.capacity_ = size_;
    return copied;
}

void FoldedText::assignWithoutAccents(const FoldedText& other) {
    static const std::array<char, 256> kPlain = plainSingles();
    clear();
    char* to = room(other.size_); // no unit takes more bytes without its accent
    const char* from = other.bytes_.get();
    for (const std::size_t end : other.ends_) {
        const char* const textEnd = other.bytes_.get() + end;
        while (from < textEnd) {
            const std::size_t copied =
                copyUnaccented(from, static_cast<std::size_t>(textEnd - from), to);
            from += copied;
            to += copied;
            if (from == textEnd)
                break;
            if (const auto byte = static_cast<std::uint8_t>(*from); byte >= kOneByteAccents) {
                *to++ = kPlain[byte];
                ++from;
            } else {
                to = put(plain(unitOf(from)), to);
                from += kMostPerUnit;
            }
        }
        ends_.push_back(static_cast<std::size_t>(to - bytes_.get()));
    }
    size_ = static_cast<std::size_t>(to - bytes_.get());
}

std::string foldedWord(std::u16string_view word, bool ignoreAccents) {
    std::string folded;
    for (const char16_t c : word) {
        const char16_t small = foldedUnit(c);
        char buffer[kMostPerUnit];
        folded.append(buffer, put(ignoreAccents ? plain(small) : small, buffer));
    }
    return folded;
}

} // namespace search
