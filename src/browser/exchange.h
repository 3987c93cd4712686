#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// A function that JavaScript calls. Elsewhere it is an ordinary one.
#ifdef __wasm__
#define ORVALENTE_EXPORTED(name) extern "C" __attribute__((export_name(#name), used))
#else
#define ORVALENTE_EXPORTED(name) extern "C"
#endif

namespace browser {

// Numbers are passed as they are; texts and bytes stand in one buffer of the program, the caller's
// before a call and the answer's after it. JavaScript asks for room, fills it, and says how much.

/// Separates the fields of a record, and the records of a list, in texts that hold several.
inline constexpr char16_t kFieldEnd = 0x1F;
inline constexpr char16_t kRecordEnd = 0x1E;

/// The text of `units` UTF-16 units that the caller has put there; less when there was room for
/// less. It is gone with the next give().
std::u16string_view takenText(std::size_t units);

/// The same for bytes.
std::span<const std::uint8_t> takenBytes(std::size_t bytes);

/// Puts an answer there; gives its length in UTF-16 units.
std::size_t give(std::u16string_view answer);

/// Puts numbers there, as they are in memory; gives their count.
std::size_t giveNumbers(std::span<const double> answer);

/// A number as fields hold it.
std::u16string decimal(int number);

/// The fields of a record, read one after the other; empty when there are no more.
class Fields {
public:
    explicit Fields(std::u16string_view record, char16_t end = kFieldEnd)
        : rest_(record), end_(end), isAtEnd_(record.empty()) {}

    bool isAtEnd() const { return isAtEnd_; }
    std::u16string_view next();
    int nextNumber(); ///< 0 for what is none

private:
    std::u16string_view rest_;
    char16_t end_;
    bool isAtEnd_;
};

} // namespace browser
