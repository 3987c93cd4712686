#include "coursetool/question_folders.h"

#include <gtest/gtest.h>

namespace {

constexpr std::nullopt_t none = std::nullopt;
using Own = std::vector<std::optional<std::size_t>>;
using Folders = std::vector<std::size_t>;

TEST(QuestionFolders, keepTheRecordOrder) {
    const auto share = [](const Own& own) { return coursetool::shareOut(own); };
    EXPECT_EQ(share({}), Folders{});
    EXPECT_EQ(share({0, 0, 1, 2}), (Folders{0, 0, 1, 2}));
    // A question that comes too late or too early stays with its neighbours.
    EXPECT_EQ(share({0, 1, 0, 1, 2}), (Folders{0, 0, 0, 1, 2}));
    EXPECT_EQ(share({2, 0, 0, 1}), (Folders{0, 0, 0, 1}));
    // So does one that belongs to no test.
    EXPECT_EQ(share({none, 1, none, 2}), (Folders{1, 1, 1, 2}));
    EXPECT_EQ(share({none, none}), (Folders{0, 0}));
}

} // namespace
