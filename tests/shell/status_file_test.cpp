#include "raw_status_file.h"
#include "shell/status_file.h"

#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include <functional>

using raw_status_file::counted;
using raw_status_file::record;
using shell::StatusFile;
using test_support::writeFile;

class StatusFileTest : public testing::Test {
protected:
    void put(const QByteArray& bytes) { writeFile(path_, bytes); }
    QByteArray bytes() const { return raw_status_file::all(directory_.path()); }

    QTemporaryDir directory_;
    QString path_ = directory_.filePath(raw_status_file::kName);
    StatusFile file_{path_};
};

TEST_F(StatusFileTest, writesCountedTextsAtRecordBoundaries) {
    EXPECT_TRUE(file_.write(1, QStringList{"NON", "", "Créé à 1 € – « œuvre » 中"}));
    EXPECT_EQ(bytes(), record("NON") + record("") +
                           record("Cr\xE9\xE9 \xE0 1 \x80 \x96 \xAB \x9Cuvre \xBB ?"));
    EXPECT_TRUE(file_.write(5, "OUI"));
    EXPECT_EQ(bytes().size(), 5 * 128);
    EXPECT_EQ(bytes().right(128), record("OUI"));
}

TEST_F(StatusFileTest, leavesTheRestOfTheFileAsItIs) {
    const QByteArray before = record("EXERCICE", '#') + record("OUI", '#');
    put(before + "trailing bytes");
    EXPECT_TRUE(file_.write(1, "NON"));
    EXPECT_EQ(bytes(), counted("NON") + before.mid(5) + "trailing bytes");
}

TEST_F(StatusFileTest, fillsUpALastRecordThatWasCutShort) {
    put(record("NON", '#') + "\x07");
    EXPECT_TRUE(file_.write(2, "NON"));
    EXPECT_EQ(bytes().size(), 2 * 128);

    put(record("NON", '#') + counted("OUI###rest"));
    EXPECT_TRUE(file_.write(2, "NON"));
    EXPECT_EQ(bytes(), record("NON", '#') + (counted("NON") + "###rest").leftJustified(128, '\0'));
}

TEST_F(StatusFileTest, readsWhatAnyRecordHolds) {
    const QByteArray longest(126, 'x');
    put(record("NON", '#') + record("\x80uro \xE9\x81") + record(longest) +
        counted(longest + 'x').left(128) + QByteArray(128, '\xFF') + record("") + counted("OUI") +
        "extra");
    const QStringList expected = {
        "NON", QStringLiteral("€uro é\u0081"), longest.constData(), "", "", "", "OUI", ""};
    EXPECT_EQ(file_.read(std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8}), expected);
    EXPECT_EQ(file_.read(std::vector<int>{7, 0, -3, 1, 2'000'000'000}),
              (QStringList{"OUI", "", "", "NON", ""}));
}

TEST_F(StatusFileTest, readsWhatIsLeftOfARecordCutShort) {
    const QByteArray whole = record("NON") + counted("EXERCICE");
    const char* const texts[] = {"", "", "", "E", "EX", "EXE"};
    for (int left = 0; left < 6; ++left) {
        put(whole.left(128 + left));
        EXPECT_EQ(file_.read(2), texts[left]) << left;
    }
}

TEST_F(StatusFileTest, refusesWhatDoesNotFit) {
    EXPECT_FALSE(file_.write(1, QStringList{"NON", QString(127, u'x')}));
    EXPECT_FALSE(file_.write(0, "NON"));
    EXPECT_FALSE(file_.write(34, "NON"));
    EXPECT_FALSE(file_.write(33, QStringList{"NON", "NON"}));
    EXPECT_FALSE(QFile::exists(path_));
    EXPECT_TRUE(file_.write(33, QString(126, u'x')));
    EXPECT_EQ(bytes().right(128), counted(QByteArray(126, 'x')));
}

TEST_F(StatusFileTest, isMadeWhenAbsent) {
    EXPECT_EQ(file_.read(1), "");
    EXPECT_TRUE(QFile::exists(path_));
    EXPECT_EQ(bytes(), "");
}

TEST_F(StatusFileTest, survivesAPlaceWithoutAFile) {
    QDir(directory_.path()).mkpath("TEMPKX.TMP");
    const StatusFile nowhere(directory_.filePath("no/such/directory/TEMPKX.TMP"));
    for (const StatusFile& file : {file_, nowhere}) {
        EXPECT_EQ(file.read(1), "");
        EXPECT_FALSE(file.write(1, "NON"));
    }
}

TEST_F(StatusFileTest, writesThroughNoLinkAndWaitsForNoPipe) {
    const QString precious = directory_.filePath("precious");
    const QByteArray text = record("IMPORTANT").repeated(40);
    const auto linked = [](const QString& to, const QString& from) {
        return ::symlink(qPrintable(to), qPrintable(from)) == 0;
    };
    const struct {
        const char* what;
        std::function<bool()> put;
    } rows[] = {
        {"a link to a file", [&] { return linked(precious, path_); }},
        {"a link to no file", [&] { return linked(directory_.filePath("made"), path_); }},
        {"a second name of a file",
         [&] { return ::link(qPrintable(precious), qPrintable(path_)) == 0; }},
        {"a pipe", [&] { return ::mkfifo(qPrintable(path_), 0600) == 0; }},
        {"a device", [&] { return linked("/dev/full", path_); }},
    };
    for (const auto& row : rows) {
        writeFile(precious, text);
        ASSERT_TRUE(row.put()) << row.what;
        EXPECT_FALSE(file_.write(1, "NON")) << row.what;
        EXPECT_NE(file_.read(1), "NON") << row.what;
        EXPECT_EQ(test_support::readFile(precious), text) << row.what;
        EXPECT_FALSE(QFile::exists(directory_.filePath("made"))) << row.what;
        ASSERT_EQ(::unlink(qPrintable(path_)), 0) << row.what;
    }
}
