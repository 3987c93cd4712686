// What a build leaves behind that dies between any two of its steps.

#include "coursetool/build.h"
#include "coursetool/workspace.h"
#include "files/directory_lock.h"
#include "files/publication.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <map>

namespace {

namespace fs = std::filesystem;

constexpr int kDied = 99;
int stepsLeft = -1; ///< of a child that is to die; none counts as long as it is negative

void step() {
    if (stepsLeft >= 0 && stepsLeft-- == 0)
        _exit(kDied);
}

} // namespace

// The calls that change directories, as this program has them: a child dies before one of them.
extern "C" {
int rename(const char* from, const char* to) noexcept {
    step();
    return static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}
int link(const char* from, const char* to) noexcept {
    step();
    return static_cast<int>(syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0));
}
int mkdir(const char* path, mode_t mode) noexcept {
    step();
    return static_cast<int>(syscall(SYS_mkdirat, AT_FDCWD, path, mode));
}
int unlinkat(int directory, const char* path, int flags) noexcept {
    step();
    return static_cast<int>(syscall(SYS_unlinkat, directory, path, flags));
}
int remove(const char* path) noexcept {
    step();
    const auto gone = syscall(SYS_unlinkat, AT_FDCWD, path, 0);
    if (gone == 0 || errno != EISDIR)
        return static_cast<int>(gone);
    return static_cast<int>(syscall(SYS_unlinkat, AT_FDCWD, path, AT_REMOVEDIR));
}
int fsync(int) {
    step();
    return 0;
}
int syncfs(int) noexcept {
    step();
    return 0;
}
}

namespace {

using Files = std::map<std::string, std::string>;

class Publish : public testing::Test {
protected:
    void SetUp() override {
        work.write("old/pages/1.page", "+++\nNumeropage = 1\n+++\nancien\n");
        work.write("old/files/a.txt", "ancien");
        work.write("old/files/Carte.bmp", "ancienne");
        work.write("new/pages/1.page", "+++\nNumeropage = 1\n+++\nnouveau\n");
        work.write("new/files/a.txt", "nouveau");
        work.write("new/files/CARTE.BMP", "nouvelle");
        work.write("new/files/sub/neuf.txt", "neuf");
        work.write("new/disc/ZEKXDATA/d.bmp", "disque");
        EXPECT_TRUE(build("old"));
        work.write("out/TEMPKX.TMP", "NON");
        before = files();
        save();
        EXPECT_TRUE(build("new"));
        after = files();
        restore();
    }

    bool build(const char* source) {
        coursetool::Report report;
        return coursetool::build(work.path(source), work.path("out"), report);
    }
    /// The course; what a build keeps for itself does not belong to it.
    Files files() const {
        Files all;
        for (const std::string& name : work.files("out"))
            if (!name.starts_with(files::Publication::kFolder))
                all[name] = work.read("out/" + name);
        return all;
    }
    void save(const char* name = "saved") const {
        fs::remove_all(work.path(name));
        fs::copy(work.path("out"), work.path(name), fs::copy_options::recursive);
    }
    void restore(const char* name = "saved") const {
        fs::remove_all(work.path("out"));
        fs::copy(work.path(name), work.path("out"), fs::copy_options::recursive);
    }
    bool isPending() const { return files::Publication(work.path("out")).isPending(); }

    /// Whether the work came to its end before it had died at the step of that number.
    static bool survives(int steps, const std::function<void()>& doIt) {
        const pid_t child = fork();
        if (child == 0) {
            stepsLeft = steps;
            doIt();
            _exit(0);
        }
        int status = 0;
        EXPECT_EQ(waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFEXITED(status)) << status;
        return WEXITSTATUS(status) != kDied;
    }

    Workspace work;
    Files before;
    Files after;
};

TEST_F(Publish, leavesTheOldCourseOrTheNewOneWheneverItDies) {
    ASSERT_NE(before, after);
    EXPECT_EQ(after.at("CARTE.BMP"), "nouvelle");
    EXPECT_FALSE(after.contains("Carte.bmp"));
    EXPECT_EQ(after.at("TEMPKX.TMP"), "NON");
    int died = 0;
    int pending = 0;
    bool isNew = false;
    while (restore(), !survives(died, [this] { build("new"); })) {
        if (isPending()) {
            ++pending;
            save("half");
            // Whoever finishes it may die as well, and the next one goes on.
            for (int again = 0;
                 !survives(again, [this] { files::finishPublication(work.path("out")); });
                 again += 3) {
                if (isPending())
                    files::finishPublication(work.path("out"));
                ASSERT_EQ(files(), after) << died << " and " << again;
                restore("half");
            }
        }
        files::finishPublication(work.path("out"));
        isNew = isNew || files() == after; // once it is, it stays so
        ASSERT_EQ(files(), isNew ? after : before) << died;
        ASSERT_TRUE(build("new")) << died;
        ASSERT_EQ(files(), after) << died;
        ASSERT_FALSE(work.has("out/.orvalente-cours")) << died;
        ++died;
    }
    EXPECT_EQ(files(), after);
    EXPECT_GT(died, 20);
    EXPECT_GT(pending, 5);
}

TEST_F(Publish, putsBackWhatItCannotFinish) {
    for (int steps = 0; restore(), !survives(steps, [this] { build("new"); }); ++steps) {
        if (!isPending() || work.read("out/Zekx.mdb") != before.at("Zekx.mdb"))
            continue;
        // Something takes the place of a file meanwhile.
        fs::rename(work.path("out/Zekx.mdb"), work.path("aside"));
        work.write("out/Zekx.mdb/in the way", "x");
        files::finishPublication(work.path("out"));
        EXPECT_FALSE(isPending());
        EXPECT_EQ(work.read("out/a.txt"), "ancien");
        EXPECT_EQ(work.read("out/Carte.bmp"), "ancienne");
        EXPECT_FALSE(work.has("out/CARTE.BMP"));
        EXPECT_FALSE(work.has("out/sub/neuf.txt"));
        EXPECT_EQ(work.read("out/Zekx.mdb/in the way"), "x");
    }
}

TEST_F(Publish, isNotFinishedWhileAnotherBuildIsAtWork) {
    int steps = 0;
    while (survives(steps, [this] { build("new"); }) || !isPending()) {
        restore();
        ASSERT_LT(++steps, 1000);
    }
    const files::DirectoryLock other(work.path("out"));
    ASSERT_TRUE(other.isHeld());
    files::finishPublication(work.path("out"));
    EXPECT_TRUE(isPending());
    coursetool::Report report;
    EXPECT_FALSE(coursetool::build(work.path("new"), work.path("out"), report));
    EXPECT_THAT(textOf(report), testing::HasSubstr("un autre build"));
    EXPECT_TRUE(isPending());
}

/// A journal can come with a course from anywhere.
TEST_F(Publish, movesNothingOutOfTheCourse) {
    work.write("victim", "mine");
    fs::create_directory_symlink(work.path(), work.path("out/away"));
    using namespace std::string_literals;
    for (const std::string& names :
         {"../victim\0\0"s, "a.txt\0../victim\0"s, "away/victim\0\0"s, "\0\0"s,
          work.path("victim").string() + "\0\0"s, "sub/../../victim\0\0"s,
          ".orvalente-cours/journal\0\0"s, "a.txt\0away/victim\0"s}) {
        const std::string staging = "out/.orvalente-cours/";
        work.write(staging + "nouveau/victim", "theirs");
        work.write(staging + "nouveau/a.txt", "theirs");
        work.write(staging + "nouveau/away/victim", "theirs");
        work.write(staging + "journal", "orvalente-cours 1\n" + names);
        files::finishPublication(work.path("out"));
        EXPECT_EQ(work.read("victim"), "mine") << testing::PrintToString(names);
        EXPECT_EQ(files(), before) << testing::PrintToString(names);
        EXPECT_TRUE(build("old")) << testing::PrintToString(names);
        fs::remove_all(work.path("out/.orvalente-cours"));
    }
    // Nor through the folder itself.
    work.write("elsewhere/journal", "orvalente-cours 1\na.txt\0\0"s);
    work.write("elsewhere/nouveau/a.txt", "theirs");
    fs::create_directory_symlink(work.path("elsewhere"), work.path("out/.orvalente-cours"));
    files::finishPublication(work.path("out"));
    EXPECT_EQ(files(), before);
    EXPECT_TRUE(build("old"));
    EXPECT_TRUE(work.has("elsewhere/journal"));
}

} // namespace
