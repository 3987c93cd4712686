#include "publish/film_cache.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using publish::FilmCache;

struct Cache : testing::Test {
    QTemporaryDir root;
    QString folder = root.filePath(QStringLiteral("deep/films"));

    void wasUsed(const char* hash, int hoursAgo) const {
        QFile file(folder + u'/' + QLatin1String(hash) + QStringLiteral(".webm"));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly));
        file.setFileTime(QDateTime::currentDateTime().addSecs(-3600 * hoursAgo),
                         QFileDevice::FileModificationTime);
    }
};

TEST_F(Cache, givesWhatItKept) {
    const FilmCache cache(folder);
    EXPECT_FALSE(cache.find("aa"));
    cache.keep("aa", "film");
    EXPECT_EQ(cache.find("aa"), QByteArray("film"));
    EXPECT_FALSE(cache.find("ab"));
}

TEST_F(Cache, leavesWhatWasNotUsedForLongest) {
    const FilmCache cache(folder, 10);
    cache.keep("aa", "1234");
    cache.keep("bb", "1234");
    wasUsed("aa", 3);
    wasUsed("bb", 2);
    QFile(folder + QStringLiteral("/notes.txt")).open(QIODevice::WriteOnly);
    EXPECT_TRUE(cache.find("aa")); // now
    cache.keep("cc", "1234");
    EXPECT_TRUE(cache.find("aa") && cache.find("cc"));
    EXPECT_FALSE(cache.find("bb"));
    cache.keep("dd", "much too long");
    EXPECT_FALSE(cache.find("dd"));
    EXPECT_TRUE(cache.find("aa") && cache.find("cc")) << "nothing had to make room";
    EXPECT_TRUE(QFile::exists(folder + QStringLiteral("/notes.txt")));
}

TEST_F(Cache, isMissedByNobody) {
    QFile(root.filePath(QStringLiteral("deep"))).open(QIODevice::WriteOnly);
    const FilmCache cache(folder); // a file stands in the way
    cache.keep("aa", "film");
    EXPECT_FALSE(cache.find("aa"));
}

} // namespace
