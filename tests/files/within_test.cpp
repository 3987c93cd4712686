#include "files/folder.h"
#include "files/within.h"

#include <sys/stat.h>

namespace {

namespace fs = std::filesystem;

TEST(Within, takesLinksByTheirEnd) {
    const Folder folder;
    folder.write("cours/a.png", "x");
    folder.write("cours/sub/b.png", "x");
    folder.write("cours2/c.png", "x");
    const fs::path course = folder / "cours";
    const auto link = [&](const char* name, const fs::path& to) {
        fs::create_symlink(to, course / name);
    };
    link("inside.png", "sub/b.png");
    link("outside.png", folder / "cours2/c.png");
    link("roundabout.png", "../cours/a.png");
    link("dangling.png", "nowhere.png");
    link("circle.png", "circle.png");
    link("folder", "sub");
    link("away", folder / "cours2");
    ASSERT_EQ(mkfifo((course / "pipe.png").c_str(), 0600), 0);
    struct Row {
        const char* name;
        bool isFile;
        bool isFolder;
        bool isFreeOfLinks;
    };
    for (const Row& row :
         {Row{"a.png", true, false, true}, Row{"sub", false, true, true},
          Row{"inside.png", true, false, false}, Row{"outside.png", false, false, false},
          Row{"roundabout.png", true, false, false}, Row{"dangling.png", false, false, false},
          Row{"circle.png", false, false, false}, Row{"folder/b.png", true, false, false},
          Row{"folder", false, true, false}, Row{"away", false, false, false},
          Row{"away/c.png", false, false, false}, Row{"../cours2/c.png", false, false, false},
          Row{"pipe.png", false, false, true}, Row{"new/of/mine.png", false, false, true}}) {
        for (const fs::path& top : {course, fs::path(course.string() + "/")}) {
            EXPECT_EQ(files::isFileWithin(top / row.name, top), row.isFile) << row.name;
            EXPECT_EQ(files::isDirectoryWithin(top / row.name, top), row.isFolder) << row.name;
            EXPECT_EQ(files::isFreeOfLinks(top / row.name, top), row.isFreeOfLinks) << row.name;
        }
    }
    // The course itself may stand behind a link.
    fs::create_directory_symlink(course, folder / "mon cours");
    EXPECT_TRUE(files::isFileWithin(folder / "mon cours/inside.png", folder / "mon cours"));
    EXPECT_FALSE(files::isFileWithin(folder / "mon cours/outside.png", folder / "mon cours"));
}

} // namespace
