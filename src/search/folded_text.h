#pragma once

#include "jet/text_sink.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace search {

/// Texts made ready for comparing: in lower case, one after the other in one run of bytes, a space
/// behind each. A word, which has no space in it, is in a text when its folded bytes are among the
/// bytes of that text, and it cannot begin in one text and end in the next.
///
/// A UTF-16 unit up to U+00FF takes one byte, its lower case in Latin-1. Every other unit takes
/// four, its hexadecimal digits: the first as a letter from "A" to "P", the others as bytes from
/// 0xC0 to 0xCF. Those are capitals in Latin-1, which no folded text has: so the bytes of one unit
/// are never found inside those of another.
class FoldedText final : public jet::TextSink {
public:
    FoldedText() = default;

    void unit(char16_t unit) override;
    void ascii(const std::uint8_t* bytes, std::size_t count) override;
    void wide(jet::Bytes units) override;
    /// Ends the text that the pieces so far make.
    void endText();
    /// Drops the pieces behind the last text that was ended.
    void dropPieces() { size_ = ends_.empty() ? 0 : ends_.back(); }
    void clear();
    /// Room for so many bytes at once, for those who know that they will come.
    void reserve(std::size_t bytes) { room(bytes); }

    /// All texts that were ended.
    std::string_view bytes() const { return {bytes_.get(), size_}; }
    /// One of them, without its space.
    std::string_view text(std::size_t index) const {
        const std::size_t start = index == 0 ? 0 : ends_[index - 1];
        return bytes().substr(start, ends_[index] - 1 - start);
    }
    /// Where each of them ends in the bytes, its space included.
    const std::vector<std::size_t>& ends() const { return ends_; }

    /// The same texts in as little memory as they take, and how much that is.
    FoldedText copy() const;
    std::size_t copySize() const { return size_ + ends_.size() * sizeof(std::size_t); }
    /// Replaces the contents by the texts of `other` without their accents.
    void assignWithoutAccents(const FoldedText& other);

private:
    char* room(std::size_t count);

    std::unique_ptr<char[]> bytes_;
    std::vector<std::size_t> ends_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
};

/// A word as it stands in a FoldedText, in one without accents when they are to be ignored.
std::string foldedWord(std::u16string_view word, bool ignoreAccents);

} // namespace search
