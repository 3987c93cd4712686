#include "platform/drive_search.h"
#include "platform/file_names.h"
#include "support/files.h"

#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>

using platform::findWithoutCase;
using platform::lastComponent;
using test_support::writeFile;

TEST(LastComponent, isTheBareNameOrNothing) {
    const struct {
        QString name, expected;
    } rows[] = {
        {"fig1.gif", "fig1.gif"},
        {"images\\fig1.gif", "fig1.gif"},
        {"images/vieux\\fig1.gif", "fig1.gif"},
        {"..\\..\\secret.txt", "secret.txt"},
        {"D:\\ZEKXDATA\\fig1.gif", "fig1.gif"},
        {"D:fig1.gif", "fig1.gif"},
        {"images\\D:fig1.gif", "fig1.gif"},
        {"É:fig1.gif", "É:fig1.gif"}, // drives have letters from A to Z
        {"1:fig1.gif", "1:fig1.gif"},
        {QLatin1String("fig1.gif\0.exe", 13), "fig1.gif"},
        {QLatin1String("\0fig1.gif", 9), ""},
        {".hidden", ".hidden"},
        {"deux mots.gif", "deux mots.gif"},
        {"", ""},
        {"  ", ""},
        {"images\\", ""},
        {".", ""},
        {"images/..", ""},
        {"D:..", ""},
        {" .. ", ""},
        {"D:", ""},
    };
    for (const auto& row : rows)
        EXPECT_EQ(lastComponent(row.name), row.expected) << qPrintable(row.name);
}

class FindWithoutCase : public testing::Test {
protected:
    void touch(const QString& name) { writeFile(directory_.filePath(name), "x"); }

    /// The name found, "-" for none.
    QString find(const QString& name) const {
        const auto path = findWithoutCase(directory_.path(), name);
        return path ? QDir(directory_.path()).relativeFilePath(*path) : QStringLiteral("-");
    }

    QTemporaryDir directory_;
};

TEST_F(FindWithoutCase, takesTheExactNameThenTheFirstOfAnotherCase) {
    for (const char* name : {"fig.gif", "FIG.gif", "Fig.GIF", "Étude.gif", "a[1].gif", ".CACHE"})
        touch(name);
    EXPECT_EQ(find("fig.gif"), "fig.gif");
    EXPECT_EQ(find("FIG.GIF"), "FIG.gif");
    EXPECT_EQ(find("éTUDE.GIF"), "Étude.gif");
    EXPECT_EQ(find("A[1].GIF"), "a[1].gif");
    EXPECT_EQ(find(".cache"), ".CACHE");
    EXPECT_EQ(find("f*.gif"), "-");
    EXPECT_EQ(find("absent.gif"), "-");
}

TEST_F(FindWithoutCase, countsOnlyFilesOfTheDirectoryItself) {
    QDir(directory_.path()).mkpath("FIG.GIF");
    EXPECT_EQ(find("FIG.GIF"), "-");
    touch("fig.gif");
    EXPECT_EQ(find("FIG.GIF"), "fig.gif");
    touch("FIG.GIF/inner.gif");
    EXPECT_EQ(find("FIG.GIF/inner.gif"), "-");
    EXPECT_EQ(find(""), "-");
    EXPECT_EQ(find(".."), "-");
    EXPECT_FALSE(findWithoutCase("", "CMakeLists.txt"));
    // A pipe without a writer would be waited on for ever.
    ASSERT_EQ(mkfifo(qPrintable(directory_.filePath("pipe")), 0600), 0);
    EXPECT_EQ(find("PIPE"), "-");
    EXPECT_EQ(find("pipe"), "-");
}

/// A course could otherwise show what the person alone may read.
TEST_F(FindWithoutCase, followsNoLinkOutOfTheDirectory) {
    QTemporaryDir elsewhere;
    writeFile(elsewhere.filePath("secret.gif"), "x");
    touch("fig.gif");
    const auto link = [this](const QString& to, const char* name) {
        ASSERT_TRUE(QFile::link(to, directory_.filePath(name)));
    };
    link(elsewhere.filePath("secret.gif"), "out.gif");
    link("fig.gif", "in.gif");
    link(elsewhere.path(), "folder");
    // Half a character, which no file system knows, ends nothing.
    EXPECT_FALSE(
        platform::findWithoutCase(directory_.path(), QChar(0xD800) + QStringLiteral(".gif")));
    EXPECT_EQ(find("out.gif"), "-");
    EXPECT_EQ(find("OUT.gif"), "-");
    EXPECT_EQ(find("in.gif"), "in.gif");
    EXPECT_FALSE(platform::findFolderWithoutCase(directory_.path(), "folder"));
    // On a disc, what counts is the disc.
    QDir(directory_.path()).mkpath("ZEKXDATA");
    link("../fig.gif", "ZEKXDATA/same disc.gif");
    link(elsewhere.filePath("secret.gif"), "ZEKXDATA/out.gif");
    using platform::DriveSearch;
    EXPECT_TRUE(DriveSearch::findInFolder(directory_.path(), "ZEKXDATA", "same disc.gif"));
    EXPECT_FALSE(DriveSearch::findInFolder(directory_.path(), "ZEKXDATA", "out.gif"));
    link(elsewhere.path(), "ZEKXV");
    EXPECT_FALSE(DriveSearch::findInFolder(directory_.path(), "ZEKXV", "secret.gif"));
}
