// Sibling programs that write their records while the shell reads all of them, without any lock.

#include "raw_status_file.h"
#include "shell/status_file.h"

#include <QTemporaryDir>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <numeric>

namespace {

using shell::StatusFile;

/// What a record is changed between: texts of different lengths, each of a letter of its own.
QString shortText(int record) {
    return QString(3, QChar(u'a' + record % 26));
}
QString longText(int record) {
    return QString(StatusFile::kLongestText, QChar(u'A' + record % 26));
}

/// A sibling program that writes its record without end.
pid_t startWriter(const QString& path, int record) {
    const pid_t child = fork();
    if (child != 0)
        return child;
    const StatusFile file(path);
    for (bool isLong = false;; isLong = !isLong)
        if (!file.write(record, isLong ? longText(record) : shortText(record)))
            _exit(1);
}

TEST(StatusRace, neverTearsARecordNorLosesOneOfAnotherProgram) {
    const QTemporaryDir directory;
    const QString path = directory.filePath(raw_status_file::kName);
    QStringList texts;
    for (int record = 1; record <= StatusFile::kModuleRecords; ++record)
        texts.append(shortText(record));
    const StatusFile file(path);
    ASSERT_TRUE(file.write(1, texts));
    // They lie in the same block of the file, one beside the other.
    const int written[] = {4, 5, 6};
    std::vector<pid_t> writers;
    for (const int record : written)
        writers.push_back(startWriter(path, record));

    std::vector<int> all(texts.size());
    std::iota(all.begin(), all.end(), 1);
    constexpr int kReads = 2000;
    int changes = 0;
    QStringList before = texts;
    for (int i = 0; i < kReads || (changes == 0 && i < 100 * kReads); ++i) {
        const QStringList read = file.read(all);
        for (int record = 1; record <= StatusFile::kModuleRecords; ++record) {
            const QString& text = read[record - 1];
            const bool mayChange = record >= written[0] && record <= written[2];
            ASSERT_TRUE(text == shortText(record) || (mayChange && text == longText(record)))
                << "record " << record << ": " << qPrintable(text);
        }
        changes += read != before;
        before = read;
    }
    EXPECT_GT(changes, 0) << "nobody wrote meanwhile";
    for (const pid_t writer : writers) {
        kill(writer, SIGKILL);
        int status = 0;
        waitpid(writer, &status, 0);
        EXPECT_TRUE(WIFSIGNALED(status)) << "a record could not be written";
    }
    const QStringList last = file.read(all);
    for (const int record : written)
        EXPECT_TRUE(last[record - 1] == shortText(record) || last[record - 1] == longText(record));
}

} // namespace
