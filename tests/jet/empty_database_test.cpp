#include "jet/database_file.h"
#include "jet/files.h"

#include <gtest/gtest.h>

#include <set>

namespace {

constexpr std::size_t kPage = 4096;

/// Bytes of the engine's own file that hold leftovers of its memory: in column blocks the offset of
/// variable columns, in index blocks the order of columns not used and a word of no meaning.
const std::set<std::size_t> kLeftovers{
    2 * kPage + 0x0E9, 2 * kPage + 0x134, 2 * kPage + 0x135, 2 * kPage + 0x14D, 2 * kPage + 0x14E,
    2 * kPage + 0x167, 2 * kPage + 0x17F, 2 * kPage + 0x199, 2 * kPage + 0x1E3, 2 * kPage + 0x321,
    2 * kPage + 0x327, 3 * kPage + 0x0AB, 3 * kPage + 0x0FA, 3 * kPage + 0x106, 3 * kPage + 0x109,
    3 * kPage + 0x115, 3 * kPage + 0x117, 4 * kPage + 0x07A, 4 * kPage + 0x0C5, 4 * kPage + 0x0DE,
    4 * kPage + 0x110, 4 * kPage + 0x19F, 4 * kPage + 0x1A5, 4 * kPage + 0x1AB, 4 * kPage + 0x1B7,
    4 * kPage + 0x1B9};

TEST(EmptyDatabase, isTheEnginesOwnButForLeftovers) {
    const ScratchFolder scratch;
    auto writer = jet::createDatabase(scratch / "empty.mdb");
    ASSERT_TRUE(writer) << writer.error().sentence;
    const auto finished = writer->finish();
    ASSERT_TRUE(finished) << finished.error().sentence;

    const FileBytes ours = readBytes(scratch / "empty.mdb");
    const FileBytes engines = readBytes(samplePath("adox_jet4"));
    ASSERT_EQ(ours.size(), engines.size());
    std::set<std::size_t> different;
    for (std::size_t i = 0; i < ours.size(); ++i)
        if (ours[i] != engines[i])
            different.insert(i);
    EXPECT_EQ(different, kLeftovers);
}

} // namespace
