#include "jet/text_codec.h"

#include "text/windows_1252.h"

#include <cstddef>
#include <cstring>
#include <iterator>

namespace jet {

namespace {

constexpr std::uint8_t kCompressionMark[] = {0xFF, 0xFE};
/// In plain UTF-16 its bytes are those of the mark.
constexpr char16_t kByteOrderMark = 0xFEFF;
/// Lengths in UTF-16 units between which the engine compresses.
constexpr std::size_t kShortestCompressed = 3;
constexpr std::size_t kLongestCompressed = 1024;

/// Stands for a code that Windows-1252 leaves open.
constexpr char16_t kUndefined = 0xFFFD;

char16_t fromWindows1252(std::uint8_t byte) {
    return text::fromWindows1252(byte).value_or(kUndefined);
}

bool isCompressed(Bytes bytes) {
    return bytes.size() >= 2 && bytes.u8(0) == kCompressionMark[0] &&
           bytes.u8(1) == kCompressionMark[1];
}

/// Collects UTF-16 units as they are.
class Utf16Sink {
public:
    explicit Utf16Sink(std::u16string& out) : out_(out) {}

    void unit(char16_t unit) { out_ += unit; }
    void ascii(const std::uint8_t* bytes, std::size_t count) { out_.append(bytes, bytes + count); }
    void wide(Bytes units) {
        const std::size_t count = units.size() / 2;
        const std::size_t before = out_.size();
        out_.resize(before + count);
        const std::uint8_t* from = units.data();
        for (std::size_t i = 0; i < count; ++i)
            out_[before + i] = static_cast<char16_t>(from[2 * i] | from[2 * i + 1] << 8);
    }

private:
    std::u16string& out_;
};

std::size_t asciiRun(Bytes bytes) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080u;
    constexpr std::uint64_t kOnes = 0x0101010101010101u;
    std::size_t run = 0;
    // Eight bytes at a time while none has its high bit set and none is 0.
    while (bytes.size() - run >= 8) {
        std::uint64_t word;
        std::memcpy(&word, bytes.data() + run, sizeof word);
        if (((word | (word - kOnes)) & kHighBits) != 0)
            break;
        run += 8;
    }
    while (run < bytes.size() && bytes.data()[run] != 0 && bytes.data()[run] < 0x80)
        ++run;
    return run;
}

/// One byte a character. Takes ASCII in runs, all else through `toUnit`; stops at `stop` bytes.
template <class Sink, class ToUnit>
std::size_t decodeNarrow(Bytes bytes, Sink& sink, bool stopAtNul, ToUnit toUnit) {
    std::size_t at = 0;
    while (at < bytes.size()) {
        const std::size_t run = asciiRun(bytes.from(at));
        sink.ascii(bytes.data() + at, run);
        at += run;
        if (at == bytes.size() || (stopAtNul && bytes.u8(at) == 0))
            break;
        sink.unit(toUnit(bytes.u8(at)));
        ++at;
    }
    return at;
}

/// The compressed form behind its mark: single bytes and plain units in turns, a 0 between them.
template <class Sink>
void decodeCompressed(Bytes bytes, Sink& sink) {
    const auto latin1 = [](std::uint8_t byte) { return char16_t{byte}; };
    while (!bytes.empty()) {
        const std::size_t narrow = decodeNarrow(bytes, sink, true, latin1);
        bytes = bytes.from(narrow + 1);
        std::size_t wide = 0;
        while (wide + 1 < bytes.size() && bytes.u8(wide) != 0)
            wide += 2;
        sink.wide(bytes.first(wide));
        bytes = bytes.from(wide + 1); // behind the 0, or behind a byte left over
    }
}

template <class Sink>
void decode(Bytes bytes, TextForm form, Sink& sink) {
    if (form == TextForm::Windows1252)
        decodeNarrow(bytes, sink, false, fromWindows1252);
    else if (form == TextForm::Compressible && isCompressed(bytes))
        decodeCompressed(bytes.from(2), sink);
    else
        sink.wide(bytes);
}

std::vector<std::uint8_t> plainUnits(std::u16string_view text) {
    std::vector<std::uint8_t> out;
    out.reserve(text.size() * 2);
    for (const char16_t unit : text) {
        out.push_back(static_cast<std::uint8_t>(unit & 0xFF));
        out.push_back(static_cast<std::uint8_t>(unit >> 8));
    }
    return out;
}

/// Units with a byte that is 0 cannot stand in the plain stretches: some readers take any 0 for
/// the end of the stretch. U+0001 to U+00FF go in the other mode; the rest rules compression out.
bool fitsCompression(std::u16string_view text) {
    if (text.size() < kShortestCompressed || text.size() > kLongestCompressed)
        return false;
    for (const char16_t unit : text)
        if ((unit & 0xFF) == 0)
            return false;
    return true;
}

std::vector<std::uint8_t> compress(std::u16string_view text) {
    std::vector<std::uint8_t> out(std::begin(kCompressionMark), std::end(kCompressionMark));
    out.reserve(text.size() + 2);
    bool narrow = true;
    for (const char16_t unit : text) {
        const bool isNarrow = unit <= 0xFF;
        if (isNarrow != narrow)
            out.push_back(0);
        narrow = isNarrow;
        out.push_back(static_cast<std::uint8_t>(unit & 0xFF));
        if (!narrow)
            out.push_back(static_cast<std::uint8_t>(unit >> 8));
    }
    return out;
}

} // namespace

void decodeText(Bytes bytes, TextForm form, std::u16string& out) {
    Utf16Sink sink(out);
    decode(bytes, form, sink);
}

void decodeText(Bytes bytes, TextForm form, TextSink& out) {
    decode(bytes, form, out);
}

std::optional<std::vector<std::uint8_t>> encodeText(std::u16string_view text, bool compressible) {
    if (compressible && fitsCompression(text)) {
        std::vector<std::uint8_t> compressed = compress(text);
        if (compressed.size() < 2 * text.size())
            return compressed;
    }
    if (text.starts_with(kByteOrderMark))
        return std::nullopt;
    return plainUnits(text);
}

std::optional<std::vector<std::uint8_t>> encodeWindows1252(std::u16string_view text) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(text.size());
    for (const char16_t unit : text) {
        const auto byte = text::toWindows1252(unit);
        if (!byte)
            return std::nullopt;
        bytes.push_back(*byte);
    }
    return bytes;
}

} // namespace jet
