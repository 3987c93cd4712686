#include "files/cause.h"
#include "files/folder.h"
#include "files/input_file.h"
#include "files/whole_file.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

namespace {

namespace fs = std::filesystem;
using files::WholeFile;
using testing::ElementsAre;

std::error_code put(const fs::path& target, std::string_view text,
                    WholeFile::Care care = WholeFile::Care::Quick) {
    WholeFile file(target);
    file.write(text);
    file.putInPlace(care);
    return file.error();
}

TEST(WholeFile, takesThePlaceOfTheOldOneOnlyAtTheEnd) {
    const Folder folder;
    folder.write("a", "ancien");
    fs::permissions(folder / "a", fs::perms{0640});
    {
        WholeFile dropped(folder / "a");
        EXPECT_TRUE(dropped.write(std::string(200'000, 'x')));
    }
    EXPECT_EQ(folder.read("a"), "ancien");
    EXPECT_EQ(put(folder / "a", "nouveau", WholeFile::Care::Lasting), std::error_code());
    EXPECT_EQ(folder.read("a"), "nouveau");
    EXPECT_EQ(fs::status(folder / "a").permissions(), fs::perms{0640});
    EXPECT_EQ(put(folder / "b", "neuf"), std::error_code());
    EXPECT_THAT(folder.names(), ElementsAre("a", "b"));
}

TEST(WholeFile, replacesWhatALinkLeadsToAndKeepsTheLink) {
    const Folder folder;
    folder.write("ailleurs/vrai", "ancien");
    fs::create_symlink("ailleurs/vrai", folder / "lien");
    EXPECT_EQ(put(folder / "lien", "nouveau"), std::error_code());
    EXPECT_TRUE(fs::is_symlink(folder / "lien"));
    EXPECT_EQ(folder.read("ailleurs/vrai"), "nouveau");
    fs::create_symlink("nulle part", folder / "perdu");
    EXPECT_EQ(put(folder / "perdu", "x"), std::errc::no_such_file_or_directory);
}

/// A process that may write 2 KB to a file stands for a disc with no more room.
TEST(WholeFile, leavesTheOldOneWhenTheDiscIsFull) {
    const Folder folder;
    folder.write("a", "ancien");
    rlimit former;
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &former), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit little{2048, former.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &little), 0);
    const std::error_code error = put(folder / "a", std::string(5000, 'x'));
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &former), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(error, std::errc::file_too_large);
    EXPECT_EQ(folder.read("a"), "ancien");
    EXPECT_THAT(folder.names(), ElementsAre("a"));
}

TEST(WholeFile, saysWhyItCannotBe) {
    const Folder folder;
    EXPECT_EQ(put(folder.path(), "x"), std::errc::is_a_directory);
    EXPECT_EQ(put(folder / "absent/a", "x"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(put("/dev/full", "x"), std::errc::no_space_on_device);
    EXPECT_EQ(files::causeOf(put("/dev/full", "x")), "le disque est plein");
    folder.write("a", "ancien");
    fs::permissions(folder.path(), fs::perms{0555});
    const uid_t user = geteuid();
    ASSERT_EQ(seteuid(user == 0 ? 65534 : user), 0); // root may write anything
    EXPECT_EQ(put(folder / "a", "x"), std::errc::permission_denied);
    ASSERT_EQ(seteuid(user), 0);
    fs::permissions(folder.path(), fs::perms{0755});
    EXPECT_EQ(folder.read("a"), "ancien");
}

TEST(WholeFile, writesIntoDevicesPipesAndWhatIsOpenAsTheyAre) {
    const Folder folder;
    EXPECT_EQ(put("/dev/null", "x"), std::error_code());
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    ASSERT_EQ(mkfifo((folder / "tube").c_str(), 0600), 0);
    const int reader = open((folder / "tube").c_str(), O_RDONLY | O_NONBLOCK);
    EXPECT_EQ(put(folder / "tube", "par le tube"), std::error_code());
    char said[20] = {};
    EXPECT_EQ(read(reader, said, sizeof said), 11);
    EXPECT_STREQ(said, "par le tube");
    close(reader);
    // Whoever holds the file open reads what was written under the name of the descriptor.
    folder.write("ouvert", "ancien contenu");
    const int held = open((folder / "ouvert").c_str(), O_RDWR);
    EXPECT_EQ(put("/dev/fd/" + std::to_string(held), "neuf"), std::error_code());
    struct stat status {};
    EXPECT_EQ(fstat(held, &status), 0);
    EXPECT_EQ(status.st_size, 4);
    close(held);
}

TEST(InputFile, isARegularFileAndIsNotInherited) {
    const Folder folder;
    folder.write("a", "0123456789");
    std::error_code error;
    const auto file = files::InputFile::open(folder / "a", error);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->size(), 10u);
    std::uint8_t bytes[4];
    EXPECT_TRUE(file->read(3, bytes, error));
    EXPECT_EQ(bytes[0], '3');
    EXPECT_FALSE(file->read(8, bytes, error));
    for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
        std::error_code gone;
        if (fs::read_symlink(entry.path(), gone) == folder / "a") {
            const int number = std::stoi(entry.path().filename().string());
            EXPECT_TRUE(fcntl(number, F_GETFD) & FD_CLOEXEC);
        }
    }
    ASSERT_EQ(mkfifo((folder / "tube").c_str(), 0600), 0);
    for (const fs::path& odd : {folder / "tube", folder.path(), fs::path("/dev/zero")}) {
        EXPECT_FALSE(files::InputFile::open(odd, error)) << odd;
        EXPECT_EQ(error, std::errc::not_supported);
    }
}

TEST(Causes, areFrenchWhateverTheyAre) {
    for (int code = 1; code < 140; ++code) {
        const std::error_code error(code, std::system_category());
        EXPECT_THAT(files::causeOf(error), testing::Not(testing::HasSubstr(error.message())));
        EXPECT_GT(files::causeOf(error).size(), 10u);
    }
}

} // namespace
