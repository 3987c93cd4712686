// What has a name for a while only, and what its owner leaves when it is killed.

#include "files/copy_file.h"
#include "files/passing_file.h"
#include "files/passing_folder.h"
#include "files/whole_file.h"
#include "folder.h"

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <optional>

namespace {

namespace fs = std::filesystem;
using files::WholeFile;
using testing::ElementsAre;

/// Does it in a process that ends without a word.
void dieAfter(const std::function<void()>& doIt) {
    const pid_t child = fork();
    if (child == 0) {
        doIt();
        _exit(0);
    }
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
}

TEST(PassingFile, ofTheDeadGoesWithTheNextOneAndThatOfTheLivingStays) {
    const Folder folder;
    WholeFile living(folder / "a");
    living.write("vivant");
    dieAfter([&] {
        const WholeFile first(folder / "b");
        const WholeFile second(folder / "c");
        _exit(0);
    });
    EXPECT_THAT(folder.names(), ElementsAre(".partiel-0", ".partiel-1", ".partiel-2"));
    WholeFile next(folder / "d");
    EXPECT_THAT(folder.names(), ElementsAre(".partiel-0", ".partiel-1"));
    next.write("suivant");
    EXPECT_TRUE(next.putInPlace());
    EXPECT_TRUE(living.putInPlace());
    EXPECT_THAT(folder.names(), ElementsAre("a", "d"));
    EXPECT_EQ(folder.read("a"), "vivant");
    EXPECT_EQ(folder.read("d"), "suivant");
}

TEST(PassingFile, leavesWhatIsNoneOfItsKind) {
    const Folder folder;
    folder.write("précieux", "x");
    fs::create_symlink("précieux", folder / ".partiel-0");
    fs::create_directory(folder / ".partiel-1");
    folder.write(".partiel-notes", "x");
    WholeFile file(folder / "a");
    EXPECT_TRUE(file.putInPlace());
    EXPECT_THAT(folder.names(),
                ElementsAre(".partiel-0", ".partiel-1", ".partiel-notes", "a", "précieux"));
    EXPECT_EQ(folder.read("précieux"), "x");
}

TEST(PassingFolder, ofTheDeadGoesWithTheNextOneAndThatOfTheLivingStays) {
    const Folder place;
    const char* const former = getenv("TMPDIR");
    const std::optional<std::string> before = former ? std::optional(former) : std::nullopt;
    setenv("TMPDIR", place.path().c_str(), 1);
    fs::create_directory(place / "orvalente");
    std::error_code error;
    {
        const files::PassingFolder living(error);
        ASSERT_FALSE(error);
        EXPECT_EQ(fs::status(living.path()).permissions(), fs::perms::owner_all);
        dieAfter([] {
            std::error_code ignored;
            const files::PassingFolder folder(ignored);
            std::ofstream(folder.path() / "a") << "x";
            _exit(0);
        });
        EXPECT_EQ(place.names().size(), 3u);
        const files::PassingFolder next(error);
        EXPECT_EQ(place.names().size(), 3u);
        EXPECT_TRUE(fs::is_empty(next.path()));
        EXPECT_TRUE(fs::exists(living.path()));
    }
    EXPECT_THAT(place.names(), ElementsAre("orvalente"));
    before ? setenv("TMPDIR", before->c_str(), 1) : unsetenv("TMPDIR");
}

TEST(CopyFile, isWholeWithItsPermissionsOrNotThere) {
    const Folder folder;
    const std::string content(200'000, 'x');
    folder.write("programme", content);
    fs::permissions(folder / "programme", fs::perms{0750});
    folder.write("ancien", "ancien");
    EXPECT_EQ(files::copyFile(folder / "programme", folder / "ancien"), std::error_code());
    EXPECT_EQ(folder.read("ancien"), content);
    EXPECT_EQ(fs::status(folder / "ancien").permissions(), fs::perms{0750});
    EXPECT_EQ(files::copyFile(folder / "absent", folder / "b"),
              std::errc::no_such_file_or_directory);
    EXPECT_EQ(files::copyFile(folder.path(), folder / "b"), std::errc::not_supported);
    EXPECT_THAT(folder.names(), ElementsAre("ancien", "programme"));
}

} // namespace
