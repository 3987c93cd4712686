#include "platform/program_kind.h"
#include "platform/qt/qt_processes.h"
#include "support/files.h"

#include <QDir>
#include <QTemporaryDir>

#include <fcntl.h>
#include <unistd.h>

using platform::ProgramKind;
using platform::QtProcesses;
using platform::StartFailure;
using test_support::eventually;
using test_support::readFile;
using test_support::writeFile;
using test_support::writeProgram;

namespace {

/// A file with a DOS header whose second header, `mark`, lies at `offset`.
QByteArray dosProgram(const QByteArray& mark, int offset = 0x80) {
    QByteArray bytes("MZ");
    bytes.resize(0x80, '\0');
    bytes[0x3C] = static_cast<char>(offset);
    return bytes + mark;
}

const QByteArray kWindowsProgram = dosProgram(QByteArray("PE\0\0", 4));

/// Puts one directory alone into the variable PATH, and the old value back at the end.
class OnlyPath {
public:
    explicit OnlyPath(const QString& directory) : before_(qgetenv("PATH")) {
        qputenv("PATH", directory.toUtf8());
    }
    ~OnlyPath() { qputenv("PATH", before_); }

private:
    QByteArray before_;
};

} // namespace

TEST(ProgramKind, isToldByTheFirstBytes) {
    const QTemporaryDir directory;
    const struct {
        const char* what;
        QByteArray bytes;
        ProgramKind expected;
    } rows[] = {
        {"ELF", "\x7f\x45LF\x02", ProgramKind::Elf},
        {"script", "#!/bin/sh\n", ProgramKind::Script},
        {"Windows", kWindowsProgram, ProgramKind::Windows},
        {"16-bit Windows", dosProgram("NE"), ProgramKind::SixteenBit},
        {"DOS, no second header", dosProgram("", 0), ProgramKind::SixteenBit},
        {"second header beyond the end", dosProgram("", 0x7F).left(0x7E), ProgramKind::SixteenBit},
        {"header cut short", "MZ\x90", ProgramKind::SixteenBit},
        {"text", "bonjour", ProgramKind::Unknown},
        {"empty", "", ProgramKind::Unknown},
    };
    for (const auto& row : rows) {
        writeFile(directory.filePath("program"), row.bytes);
        EXPECT_EQ(platform::programKind(directory.filePath("program")), row.expected) << row.what;
    }
    EXPECT_EQ(platform::programKind(directory.filePath("absent")), ProgramKind::Unknown);
}

TEST(QtProcesses, startsAProgramOfAnotherLetterCaseInItsOwnDirectory) {
    const QTemporaryDir directory;
    writeProgram(directory.filePath("simu23.EXE"), "#!/bin/sh\n"
                                                   "echo \"$$ $(pwd) $FIRST $SECOND\" > made\n"
                                                   "mv made seen\n");
    const auto started =
        QtProcesses().start(directory.filePath("Simu23.exe"), {{"FIRST", "a b"}, {"SECOND", "c"}});
    ASSERT_TRUE(started.pid);
    const QString seen = directory.filePath("seen");
    ASSERT_TRUE(eventually([&] { return QFile::exists(seen); }));
    EXPECT_EQ(readFile(seen), QByteArray::number(*started.pid) + ' ' +
                                  QDir(directory.path()).canonicalPath().toUtf8() + " a b c\n");
}

TEST(QtProcesses, runsAWindowsProgramThroughWine) {
    const QTemporaryDir course;
    const QTemporaryDir tools;
    writeFile(course.filePath("SIMU21.EXE"), kWindowsProgram);
    const OnlyPath path(tools.path());
    const QString program = course.filePath("Simu21.exe");
    EXPECT_EQ(QtProcesses().start(program).failure, StartFailure::NeedsWine);

    writeProgram(tools.filePath("wine"), "#!/bin/sh\necho \"$* $FIRST\" > seen\n");
    EXPECT_TRUE(QtProcesses().start(program, {{"FIRST", "x"}}).pid);
    EXPECT_TRUE(eventually([&] {
        return readFile(course.filePath("seen")) == course.filePath("SIMU21.EXE").toUtf8() + " x\n";
    }));
}

TEST(QtProcesses, saysWhyAProgramDoesNotStart) {
    const QTemporaryDir directory;
    writeProgram(directory.filePath("old.exe"), dosProgram("NE"));
    writeProgram(directory.filePath("note.exe"), "bonjour");
    writeProgram(directory.filePath("lost.exe"), "#!/no/such/interpreter\n");
    QDir(directory.path()).mkpath("folder.exe");
    ASSERT_TRUE(QFile::link("/bin/true", directory.filePath("stranger.exe")));
    const struct {
        const char* name;
        StartFailure expected;
    } rows[] = {
        {"absent.exe", StartFailure::Missing},    {"folder.exe", StartFailure::Missing},
        {"stranger.exe", StartFailure::LeadsOut}, {"old.exe", StartFailure::SixteenBit},
        {"note.exe", StartFailure::NotAProgram},  {"lost.exe", StartFailure::Refused},
    };
    for (const auto& row : rows) {
        const auto started = QtProcesses().start(directory.filePath(row.name));
        EXPECT_FALSE(started.pid) << row.name;
        EXPECT_EQ(started.failure, row.expected) << row.name;
    }
}

TEST(QtProcesses, followsLinksInsideTheDirectory) {
    const QTemporaryDir directory;
    writeProgram(directory.filePath("simu"), "#!/bin/sh\n");
    ASSERT_TRUE(QFile::link("simu", directory.filePath("Simu23.exe")));
    EXPECT_TRUE(QtProcesses().start(directory.filePath("Simu23.exe")).pid);
    const QTemporaryDir elsewhere; // the way to the directory may be a link
    ASSERT_TRUE(QFile::link(directory.path(), elsewhere.filePath("cours")));
    EXPECT_TRUE(QtProcesses().start(elsewhere.filePath("cours/Simu23.exe")).pid);
}

TEST(QtProcesses, leavesNoFileOpenInAStartedProgram) {
    const QTemporaryDir directory;
    const QString open = directory.filePath("open");
    writeFile(open, "");
    const int descriptor = ::open(qPrintable(open), O_RDONLY); // as a careless library would
    ASSERT_GE(descriptor, 0);
    writeProgram(directory.filePath("Simu23.exe"), "#!/bin/sh\n"
                                                   "ls -l /proc/$$/fd > made\n"
                                                   "mv made seen\n");
    ASSERT_TRUE(QtProcesses().start(directory.filePath("Simu23.exe")).pid);
    const QString seen = directory.filePath("seen");
    ASSERT_TRUE(eventually([&] { return QFile::exists(seen); }));
    EXPECT_TRUE(readFile(seen).contains(" 1 ->")); // its standard output, at least
    EXPECT_FALSE(readFile(seen).contains(open.toUtf8())) << readFile(seen).constData();
    ::close(descriptor);
}
