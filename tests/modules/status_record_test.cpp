// The modules' side of the status file against the shell's own, and on damaged files.

#include "common/status_record.h"
#include "shell/raw_status_file.h"
#include "shell/status_file.h"

#include <QDir>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

using common::StatusRecord;

class StatusRecordTest : public testing::Test {
protected:
    void put(const QByteArray& bytes) {
        test_support::writeFile(directory_.filePath(raw_status_file::kName), bytes);
    }
    QByteArray bytes() const { return raw_status_file::all(directory_.path()); }

    QTemporaryDir directory_;
    shell::StatusFile shell_{directory_.filePath(raw_status_file::kName)};
    StatusRecord module_{directory_.path(), 23};
    StatusRecord other_{directory_.path(), 7};
};

TEST_F(StatusRecordTest, interleavesWithTheShell) {
    raw_status_file::writeAllNon(directory_.path());
    shell_.write(shell::StatusFile::kArgumentRecord,
                 QStringList{"Exercice 05.E21", "Édition « œuvre » 1 €"});
    EXPECT_TRUE(module_.setRunning(true));
    EXPECT_EQ(module_.exercise(), "Exercice 05.E21");
    EXPECT_EQ(module_.edition(), "Édition « œuvre » 1 €");
    EXPECT_TRUE(other_.setRunning(true));
    shell_.write(31, QString());
    EXPECT_EQ(module_.exercise(), "");
    EXPECT_EQ(shell_.read({7, 22, 23, 24, 33}), QStringList({"OUI", "NON", "OUI", "NON", "NON"}));
    EXPECT_TRUE(module_.setRunning(false));
    EXPECT_EQ(shell_.read({7, 23}), QStringList({"OUI", "NON"}));
}

TEST_F(StatusRecordTest, writesNoByteOfOtherRecords) {
    const QByteArray before(33 * 128, '#');
    put(before);
    EXPECT_TRUE(module_.setRunning(true));
    EXPECT_EQ(bytes(), QByteArray(before).replace(22 * 128, 5, QByteArray("\3\0OUI", 5)));
}

TEST_F(StatusRecordTest, onlyABareNameIsAnExercise) {
    const struct {
        const char* written;
        const char* read;
    } rows[] = {{"NON", ""},
                {" Exercice 03.E21 ", "Exercice 03.E21"},
                {"../../etc/passwd", "passwd"},
                {"C:\\cours\\Exercice 03.E21", "Exercice 03.E21"},
                {"..", ""},
                {"dossier/", ""}};
    for (const auto& row : rows) {
        shell_.write(31, QString::fromUtf8(row.written));
        EXPECT_EQ(module_.exercise(), QString::fromUtf8(row.read)) << row.written;
    }
}

TEST_F(StatusRecordTest, livesWithMissingAndDamagedFiles) {
    EXPECT_FALSE(module_.setRunning(true));
    EXPECT_EQ(module_.exercise(), "");
    EXPECT_FALSE(QFile::exists(directory_.filePath(raw_status_file::kName))); // not made here

    put(raw_status_file::record("NON") + "\x03"); // cut short
    EXPECT_TRUE(module_.setRunning(true));
    EXPECT_EQ(bytes().size(), 23 * 128);
    EXPECT_EQ(raw_status_file::characters(directory_.path(), 23), "OUI");
    EXPECT_EQ(module_.exercise(), "");
    put(QByteArray(33 * 128, '\xFF')); // lengths beyond a record
    EXPECT_EQ(module_.exercise() + module_.edition(), "");

    const QString path = directory_.filePath(raw_status_file::kName);
    QFile::rename(path, directory_.filePath("tempkx.tmp"));
    EXPECT_TRUE(module_.setRunning(true));
    QFile::remove(directory_.filePath("tempkx.tmp"));
    QDir(directory_.path()).mkdir(raw_status_file::kName); // a directory of this name
    EXPECT_FALSE(module_.setRunning(true));
    EXPECT_EQ(module_.exercise(), "");
}

TEST_F(StatusRecordTest, isWhereTheShellSays) {
    const QTemporaryDir personal;
    raw_status_file::writeAllNon(directory_.path());
    raw_status_file::writeAllNon(personal.path());
    raw_status_file::put(personal.path(), 31, "Exercice 05.E21");
    qputenv("ORVALENTE_STATUS_FILE", personal.filePath(raw_status_file::kName).toLocal8Bit());
    EXPECT_TRUE(module_.setRunning(true));
    EXPECT_EQ(module_.exercise(), "Exercice 05.E21");
    qputenv("ORVALENTE_STATUS_FILE", "relative"); // says nothing
    EXPECT_EQ(module_.exercise(), "");
    qunsetenv("ORVALENTE_STATUS_FILE");
    EXPECT_EQ(raw_status_file::characters(personal.path(), 23), "OUI");
    EXPECT_EQ(raw_status_file::characters(directory_.path(), 23), "NON");
}

TEST_F(StatusRecordTest, leavesAloneWhatIsNoFileOfThePersonsOwn) {
    const QString path = directory_.filePath(raw_status_file::kName);
    const QString precious = directory_.filePath("precious");
    for (const char* kind : {"link", "second name", "pipe", "of another person"}) {
        test_support::writeFile(precious, raw_status_file::record("NON").repeated(33));
        if (kind == QByteArray("link")) {
            ASSERT_TRUE(QFile::link(precious, path));
        } else if (kind == QByteArray("second name")) {
            ASSERT_EQ(link(qPrintable(precious), qPrintable(path)), 0);
        } else if (kind == QByteArray("pipe")) {
            ASSERT_EQ(mkfifo(qPrintable(path), 0600), 0);
        } else {
            raw_status_file::writeAllNon(directory_.path());
            raw_status_file::protect(directory_.path());
        }
        EXPECT_FALSE(module_.setRunning(true)) << kind;
        EXPECT_EQ(module_.exercise(), "") << kind;
        EXPECT_EQ(test_support::readFile(precious), raw_status_file::record("NON").repeated(33));
        ASSERT_EQ(unlink(qPrintable(path)), 0);
    }
}
