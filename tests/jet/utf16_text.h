#pragma once

#include "jet/text_sink.h"

#include <string>

/// Takes a text as it is stored.
struct Utf16Text : jet::TextSink {
    void unit(char16_t unit) override { text += unit; }
    void ascii(const std::uint8_t* bytes, std::size_t count) override {
        text.append(bytes, bytes + count);
    }
    void wide(jet::Bytes units) override {
        for (std::size_t at = 0; units.has(at, 2); at += 2)
            text += static_cast<char16_t>(units.u16(at));
    }
    std::u16string text;
};
