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

/// A folder that is published into again and again.
struct Editions : Site {
    using Content = std::vector<std::pair<const char*, const char*>>; ///< stems and texts
    enum class End { Whole, Died };

    void publish(const Content& content, End end = End::Whole) {
        SiteFolder site(place, report);
        ASSERT_TRUE(site.open());
        for (const auto& [stem, text] : content)
            site.add(QString::fromLatin1(stem), ".js", text);
        EXPECT_TRUE(end == End::Died || site.finish(publish::kGeneratorMark));
    }
    bool has(const char* stem, const char* text) const {
        return fs::exists(place /
                          SiteFolder::nameOf(QString::fromLatin1(stem), ".js", text).toStdString());
    }
    std::string list() const { return textOf(place / publish::SiteList::kName); }
};

TEST_F(Editions, keepTheFilesOfTheOneBefore) {
    publish({{"pages/p1", "a"}, {"style", "s"}});
    publish({{"pages/p1", "b"}, {"style", "s"}});
    EXPECT_TRUE(has("pages/p1", "a")) << "who has the site open turns its pages";
    publish({{"pages/p1", "b"}, {"style", "s"}});
    EXPECT_TRUE(has("pages/p1", "a")) << "the same again is no new edition";
    publish({{"pages/p1", "c"}, {"style", "s"}});
    EXPECT_FALSE(has("pages/p1", "a"));
    EXPECT_TRUE(has("pages/p1", "b") && has("pages/p1", "c") && has("style", "s"));
    publish({{"pages/p1", "a"}, {"style", "s"}});
    EXPECT_FALSE(has("pages/p1", "b"));
    EXPECT_TRUE(has("pages/p1", "a") && has("pages/p1", "c")) << "what comes back is there";
    EXPECT_TRUE(fs::exists(place / "index.html"));
}

TEST_F(Editions, leaveNothingBehindInAnyFolder) {
    const char* const stems[] = {"style",           "pages/p1",        "tests/t1",  "programme/a",
                                 "polices/cours-a", "simulations/m10", "films/clip"};
    for (const char* text : {"a", "b", "c"}) {
        Content files;
        for (const char* stem : stems)
            files.emplace_back(stem, text);
        publish(files);
    }
    for (const char* stem : stems)
        EXPECT_FALSE(has(stem, "a")) << stem;
}

TEST_F(Editions, forgetNothingOfAnInterruptedOne) {
    publish({{"pages/p1", "first"}}, End::Died);
    publish({{"pages/p1", "a"}});
    EXPECT_FALSE(has("pages/p1", "first")) << "the folder is taken for ours, and cleaned";
    publish({{"pages/p1", "lost"}, {"pages/p2", "lost"}}, End::Died);
    std::ofstream(place / publish::SiteList::kName, std::ios::app) << "+ pages/p3-01";
    publish({{"pages/p1", "lost"}}, End::Died);
    EXPECT_TRUE(has("pages/p1", "a")) << "it is what the first page leads to";
    publish({{"pages/p1", "b"}});
    EXPECT_FALSE(has("pages/p1", "lost") || has("pages/p2", "lost"));
    EXPECT_TRUE(has("pages/p1", "a"));
    EXPECT_EQ(list().find("p3-01"), std::string::npos);
    EXPECT_FALSE(report.hasFaults() || report.hasFailures());
}

TEST_F(Editions, removeNothingElse) {
    publish({{"pages/p1", "a"}});
    const std::string notOurs[] = {"notes.txt", "pages/p1.js", "pages/p1-0123456789.js",
                                   "pages/p1-0123456789.js.gz", "mine/p1-0123456789.js"};
    fs::create_directories(place / "mine");
    for (const std::string& name : notOurs)
        put(place / name, "theirs");
    put(root / "out-0123456789.js", "theirs");
    fs::create_directories(root / "elsewhere");
    put(root / "elsewhere" / "f-0123456789.webm", "theirs");
    fs::create_directory_symlink(root / "elsewhere", place / "films");
    fs::create_directory(place / "dir-0123456789.js");
    // Somebody has written in the list.
    std::ofstream(place / publish::SiteList::kName, std::ios::app)
        << "= notes.txt\n= index.html\n- ../out-0123456789.js\n- mine/p1-0123456789.js\n"
           "- films/f-0123456789.webm\n- dir-0123456789.js\n-\n\n= /etc/passwd\n";
    for (const char* text : {"b", "c", "d"})
        publish({{"pages/p1", text}});
    for (const std::string& name : notOurs)
        EXPECT_TRUE(fs::exists(place / name)) << name;
    for (const fs::path& kept :
         {root / "out-0123456789.js", root / "elsewhere" / "f-0123456789.webm",
          place / "dir-0123456789.js", place / "index.html"})
        EXPECT_TRUE(fs::exists(kept)) << kept;
    EXPECT_FALSE(has("pages/p1", "a") || has("pages/p1", "b"));
}

TEST_F(Editions, writeTheirListThroughNoLink) {
    publish({{"pages/p1", "a"}});
    put(root / "precious", "kept");
    fs::remove(place / publish::SiteList::kName);
    fs::create_symlink(root / "precious", place / publish::SiteList::kName);
    publish({{"pages/p1", "b"}});
    EXPECT_EQ(textOf(root / "precious"), "kept");
    EXPECT_NE(list().find("= pages/p1-"), std::string::npos);
}

} // namespace
