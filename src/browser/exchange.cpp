#include "browser/exchange.h"

#include "text/numeric_reader.h"
#include "text/rounding.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace browser {

namespace {

std::vector<char16_t> buffer;

} // namespace

std::u16string_view takenText(std::size_t units) {
    return {buffer.data(), std::min(units, buffer.size())};
}

std::span<const std::uint8_t> takenBytes(std::size_t bytes) {
    return {reinterpret_cast<const std::uint8_t*>(buffer.data()),
            std::min(bytes, buffer.size() * sizeof(char16_t))};
}

std::size_t give(std::u16string_view answer) {
    buffer.assign(answer.begin(), answer.end());
    return answer.size();
}

std::size_t giveNumbers(std::span<const double> answer) {
    buffer.resize(answer.size_bytes() / sizeof(char16_t));
    if (!answer.empty())
        std::memcpy(buffer.data(), answer.data(), answer.size_bytes());
    return answer.size();
}

std::u16string decimal(int number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

std::u16string_view Fields::next() {
    const std::size_t end = rest_.find(end_);
    const std::u16string_view field = rest_.substr(0, end);
    isAtEnd_ = end == rest_.npos;
    rest_.remove_prefix(isAtEnd_ ? rest_.size() : end + 1);
    return field;
}

int Fields::nextNumber() {
    return text::toInt32(text::leadingNumber(next())).value_or(0);
}

} // namespace browser

/// Where the caller writes and reads; there is room for `units` UTF-16 units from then on. The
/// place changes with every answer.
ORVALENTE_EXPORTED(room) char16_t* room(std::size_t units) {
    if (browser::buffer.size() < units)
        browser::buffer.resize(units);
    return browser::buffer.data();
}
