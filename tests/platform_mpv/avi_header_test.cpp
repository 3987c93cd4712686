#include "platform/avi_header.h"
#include "platform_mpv/clips.h"
#include "support/files.h"

namespace {

using platform::AviHeader;
using platform::readAviHeader;

std::optional<AviHeader> read(const QByteArray& bytes) {
    return readAviHeader(std::as_bytes(std::span(bytes.constData(), std::size_t(bytes.size()))));
}

/// The bytes of a file with sound, where what is looked for stands in the first stream.
class AviHeaders : public testing::Test {
protected:
    QTemporaryDir directory;
    QByteArray file = test_support::readFile(
        test_support::Clip{"film", "mjpeg", "30000/1001", 50, 2}.make(directory));
    qsizetype avih = file.indexOf("avih") + 8;
    qsizetype vids = file.indexOf("vids");

    /// The file with other numbers, each where it stands.
    std::optional<AviHeader>
    readWith(std::initializer_list<std::pair<qsizetype, quint32>> numbers) {
        QByteArray changed = file;
        for (const auto& [offset, value] : numbers)
            for (int i = 0; i < 4; ++i)
                changed[offset + i] = char(value >> 8 * i);
        return read(changed);
    }
};

TEST_F(AviHeaders, streamGoesBeforeMainHeader) {
    const auto said = readWith({{avih, 40'000}, {avih + 16, 7}});
    ASSERT_TRUE(said);
    EXPECT_DOUBLE_EQ(said->framesPerSecond, 30000 / 1001.0);
    EXPECT_EQ(said->frames, 50);
    const auto silent = readWith({{vids + 20, 0}, {vids + 32, 0}, {avih, 40'000}, {avih + 16, 7}});
    EXPECT_DOUBLE_EQ(silent->framesPerSecond, 25);
    EXPECT_EQ(silent->frames, 7);
}

TEST_F(AviHeaders, impossibleNumbersCountAsUnsaid) {
    const auto said = readWith({{vids + 20, 1},
                                {vids + 24, 0xffffffff},
                                {vids + 32, 0xffffffff},
                                {avih, 1},
                                {avih + 16, 0x80000000}});
    ASSERT_TRUE(said);
    EXPECT_EQ(said->framesPerSecond, 0);
    EXPECT_EQ(said->frames, 0);
}

TEST_F(AviHeaders, cutOrDamagedAnywhereNothingIsReadBeyond) {
    const QByteArray headers = file.left(400);
    for (qsizetype size = 0; size <= headers.size(); ++size)
        EXPECT_EQ(read(headers.left(size)).has_value(), size >= 12) << size;
    // Sizes of chunks that lead beyond the end, or round to before the start.
    for (qsizetype i = 12; i < headers.size(); ++i)
        for (const char byte : {'\0', '\xff'}) {
            QByteArray damaged = headers;
            damaged[i] = byte;
            damaged.squeeze();
            ASSERT_TRUE(read(damaged)) << i;
        }
    EXPECT_FALSE(read("RIFF\0\0\0\0WAVE"));
    EXPECT_FALSE(read("#EXTM3U\nfilm.avi\n"));
}

} // namespace
