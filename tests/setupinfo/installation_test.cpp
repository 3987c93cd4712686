#include "setupinfo/installation.h"
#include "shell/raw_status_file.h"
#include "support/printing.h"

#include <QDateTime>
#include <QProcess>
#include <QTemporaryDir>

namespace {

using setupinfo::installationText;
using setupinfo::readInstallation;

const QString kHeading = QStringLiteral("Descriptif du logiciel Orvalente installé :\r\n\r\n");

class Installation : public testing::Test {
protected:
    /// The text with the records as they are, of a program that does not exist.
    QString text(const QVersionNumber& version = {1, 0, 5}) const {
        return installationText(readInstallation(directory.filePath(raw_status_file::kName),
                                                 directory.filePath("nothing"), version));
    }

    QTemporaryDir directory;
};

TEST_F(Installation, textToTheLetter) {
    EXPECT_EQ(installationText({QStringLiteral("Lycée"), QStringLiteral("complète"),
                                QVersionNumber(1, 0, 5), QDate(2026, 8, 1)}),
              kHeading + QStringLiteral("         Version : Lycée 1.0.5\r\n"
                                        "         Date de création : 01 août 2026\r\n"
                                        "         Type d'installation : complète"));
}

TEST_F(Installation, recordsOfTheStatusFile) {
    const QString empty = kHeading + QStringLiteral("         Version :  1.2.0\r\n"
                                                    "         Date de création : \r\n"
                                                    "         Type d'installation : ");
    EXPECT_EQ(text(QVersionNumber(1, 2)), empty) << "no file";
    raw_status_file::writeAllNon(directory.path());
    raw_status_file::put(directory.path(), 32, "Lyc\xE9\x65");
    EXPECT_TRUE(text().contains(QStringLiteral(" : Lycée 1.0.5\r\n")));
    EXPECT_TRUE(text().endsWith(QStringLiteral("Type d'installation : NON")));
    raw_status_file::put(directory.path(), 33, QByteArray("r\xE9seau\r\n\0fin", 12));
    EXPECT_TRUE(text().endsWith(QStringLiteral(" : réseau   fin"))) << "damage stays on its line";
    QFile file(directory.filePath("TEMPKX.TMP"));
    ASSERT_TRUE(file.resize(31 * 128));
    EXPECT_EQ(text(QVersionNumber(1, 2)), empty) << "records 32 and 33 missing";
}

/// What another program reads of a file, seconds since 1970; 0 when the file system does not know.
qint64 statSays(const char* what, const QString& file) {
    QProcess stat;
    stat.start(QStringLiteral("stat"), {QStringLiteral("-c"), QLatin1String(what), file});
    EXPECT_TRUE(stat.waitForFinished());
    return stat.readAllStandardOutput().trimmed().toLongLong();
}

TEST_F(Installation, dateIsThatOfBirthWhereTheFileSystemKeepsIt) {
    const QString program = directory.filePath("orvalente");
    test_support::writeFile(program, "program");
    QFile file(program);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime({2001, 2, 3}, {12, 0}), QFile::FileModificationTime));
    file.close();
    const qint64 birth = statSays("%W", program);
    EXPECT_EQ(setupinfo::creationDate(program),
              birth > 0 ? QDateTime::fromSecsSinceEpoch(birth).date() : QDate(2001, 2, 3));

    // A file system that keeps no births.
    const QString system = QStringLiteral("/proc/version");
    ASSERT_EQ(statSays("%W", system), 0);
    const qint64 changed = statSays("%Y", system);
    EXPECT_EQ(setupinfo::creationDate(system), QDateTime::fromSecsSinceEpoch(changed).date());
    EXPECT_FALSE(setupinfo::creationDate(directory.filePath("nothing")).isValid());
}

} // namespace
