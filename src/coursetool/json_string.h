#pragma once

#include "jet/text_sink.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace coursetool {

/// Appends `utf8` as a JSON string, in quotes. Characters beyond ASCII stand as they are.
void appendJsonString(std::string_view utf8, std::string& out);

/// Appends a text as a JSON string, straight from the form in which a database holds it; unpaired
/// surrogates become U+FFFD.
class JsonString final : public jet::TextSink {
public:
    /// Opens the string. What is appended to `out` is complete only after close().
    explicit JsonString(std::string& out) : out_(out) { out_ += '"'; }

    void unit(char16_t unit) override;
    void ascii(const std::uint8_t* bytes, std::size_t count) override;
    void wide(jet::Bytes units) override;
    void close();

private:
    void endPair();
    char* put(char16_t unit, char* to);
    char* putStretch(jet::Bytes units, char* to);

    std::string& out_;
    char16_t high_ = 0; ///< a high surrogate that still waits for its other half
};

} // namespace coursetool
