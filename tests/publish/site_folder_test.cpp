#include "publish/site_folder.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <fstream>

namespace {

namespace fs = std::filesystem;
using publish::SiteFolder;

struct Site : testing::Test {
    QTemporaryDir folder;
    fs::path root = folder.path().toStdString();
    fs::path place = root / "site";
    coursetool::Report report;

    static void put(const fs::path& path, const std::string& text) { std::ofstream(path) << text; }
    static std::string textOf(const fs::path& path) {
        std::ifstream file(path);
        return {std::istreambuf_iterator<char>(file), {}};
    }
};

TEST_F(Site, namesFilesAfterWhatIsInThem) {
    SiteFolder site(place, report);
    ASSERT_TRUE(site.open());
    const QString one = site.add(QStringLiteral("pages/p1"), ".js", "a");
    EXPECT_EQ(one, site.add(QStringLiteral("pages/p1"), ".js", "a"));
    EXPECT_NE(one, site.add(QStringLiteral("pages/p1"), ".js", "b"));
    EXPECT_EQ(textOf(site.pathOf(one)), "a");
    EXPECT_EQ(site.names().size(), 2U);
}

TEST_F(Site, isPutOnlyWhereNothingElseIs) {
    fs::create_directories(place);
    EXPECT_TRUE(SiteFolder(place, report).open()) << "an empty folder";
    put(place / "index.html", std::string("<head>") + publish::kGeneratorMark);
    EXPECT_TRUE(SiteFolder(place, report).open()) << "a site of ours";
    put(place / "index.html", "theirs");
    EXPECT_FALSE(SiteFolder(place, report).open());
    EXPECT_FALSE(SiteFolder(place / "index.html", report).open()) << "a file";
    fs::create_directories(root / "elsewhere");
    fs::create_directory_symlink(root / "elsewhere", root / "link");
    EXPECT_FALSE(SiteFolder(root / "link", report).open()) << "a link to an empty folder";
    EXPECT_EQ(report.faultCount(), 3U);
    EXPECT_EQ(textOf(place / "index.html"), "theirs");
}

TEST_F(Site, writesThroughNoLink) {
    SiteFolder site(place, report);
    ASSERT_TRUE(site.open());
    put(root / "precious", "kept");
    const QString name = SiteFolder::nameOf(QStringLiteral("style"), ".css", "new");
    fs::create_symlink(root / "precious", site.pathOf(name));
    EXPECT_EQ(site.add(QStringLiteral("style"), ".css", "new"), name);
    EXPECT_EQ(textOf(root / "precious"), "kept");
    EXPECT_FALSE(fs::is_symlink(site.pathOf(name)));

    fs::create_directories(root / "elsewhere");
    fs::create_directory_symlink(root / "elsewhere", place / "pages");
    EXPECT_TRUE(site.add(QStringLiteral("pages/p1"), ".js", "a").isEmpty());
    EXPECT_TRUE(fs::is_empty(root / "elsewhere"));
    EXPECT_TRUE(report.hasFailures());
}

} // namespace
