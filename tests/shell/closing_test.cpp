#include "launcher_case.h"
#include "shell/closing.h"
#include "shell/title_fragments.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Windows of no program: keeps what was asked of them.
class FakeWindows : public platform::ProgramWindows {
public:
    std::vector<platform::ProgramWindow> list() const override {
        ++reads;
        return windows;
    }
    platform::WindowOwner owner(quint64 id) const override { return owners.value(id); }
    void postQuit(quint64 id) override {
        quits.push_back(id);
        if (vanish)
            windows.clear();
    }

    std::vector<platform::ProgramWindow> windows;
    QHash<quint64, platform::WindowOwner> owners;
    std::vector<quint64> quits;
    bool vanish = false; ///< whether a window goes when its program is asked to quit
    mutable int reads = 0;
};

class ClosingTest : public LauncherCase {
protected:
    void show(const QString& title, bool hasParent = false) {
        windows_.windows.push_back({windows_.windows.size() + 1, title, hasParent});
    }

    /// Shows a window of the process `pid`, which runs a file; the file is made.
    void showOf(const QString& title, qint64 pid, const QString& program) {
        if (program.startsWith(directory_.path()))
            test_support::writeFile(program, "");
        show(title);
        windows_.owners.insert(windows_.windows.back().id, {pid, program});
    }

    void close() { shell::Closing(state_, launcher_, windows_, starter_).run(); }

    FakeWindows windows_;
};

} // namespace

TEST_F(ClosingTest, quitsTheWindowsOfSiblingProgramsByTheirTitles) {
    put(2, "OUI");
    show("Mouvement d’un projectile - Orvalente, module 23");
    show("Liens utiles - ORVALENTE, module 07");
    show("Liens utiles - orvalente, module 07");
    show("Aide d’Orvalente");
    show("");
    show("Orvalente - Le module 23 et les autres");
    show("Optique - Orvalente, module 19");
    show("Enregistrer « Orvalente, module 23.odt » ?", true);
    show("Orvalente, module 01 et Orvalente, module 02");
    close();
    // In the order of the fragments; the last window has two of them.
    EXPECT_THAT(windows_.quits, ElementsAre(4, 9, 9, 3, 1));
    EXPECT_EQ(windows_.reads, 20);
    EXPECT_EQ(starter_.programs, QStringList{state_.InstallDir + "TERMINUS.EXE"});
    EXPECT_EQ(starter_.variables.value("ORVALENTE_STATUS_FILE"), state_.StatusFilePath);
}

TEST_F(ClosingTest, quitsOnlyWhatIsOfThisCourse) {
    put(2, "OUI");
    state_.SiblingProcessIds.store(9, 900);
    const QString module = "Optique - Orvalente, module 09", help = "Aide d’Orvalente";
    const QString shell = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    const struct {
        QString title;
        qint64 pid;
        QString program;
        bool quits;
    } rows[] = {
        {module, 901, "/usr/bin/writer", false}, // with a document of that name
        {module, 901, "", false},
        {module, 900, "/usr/bin/python3", true}, // started from here
        {module, 901, directory_.filePath("SIMU09.EXE"), true},
        {module, 0, "", true}, // to be asked to close
        {module, 901, directory_.filePath(shell), false},
        {help, 901, "/elsewhere/" + shell, false}, // another shell's own help
        {help, 901, directory_.filePath(shell), false},
        {help, 901, "/usr/bin/browser", false},
        {help, 901, "/home/pupil/.wine/drive_c/windows/WINHLP32.exe", true},
        {"Page - Orvalente, module 07", 900, "/elsewhere/" + shell, false},
    };
    for (const auto& row : rows) {
        windows_.windows.clear();
        windows_.quits.clear();
        showOf(row.title, row.pid, row.program);
        close();
        EXPECT_EQ(windows_.quits.size(), row.quits ? 1u : 0u)
            << qPrintable(row.title + ' ' + row.program);
    }
}

TEST_F(ClosingTest, readsTheWindowsAnewForEveryTitle) {
    put(2, "OUI");
    windows_.vanish = true;
    show("Orvalente, module 01 et Orvalente, module 02");
    close();
    EXPECT_THAT(windows_.quits, ElementsAre(1));
}

TEST_F(ClosingTest, touchesNothingWithoutAPositiveCount) {
    show("Liens utiles - Orvalente, module 07");
    const struct {
        const char* record7;
        const char* record20;
    } rows[] = {{"NON", "NON"}, {"OUI", "OUI"}, {"OUI", "non"}};
    starter_.result = {std::nullopt, platform::StartFailure::Missing};
    for (const auto& row : rows) {
        put(7, row.record7);
        put(20, row.record20);
        close();
    }
    EXPECT_THAT(windows_.quits, IsEmpty());
    EXPECT_EQ(windows_.reads, 0);
    EXPECT_EQ(starter_.programs.size(), 3);
    EXPECT_TRUE(reports_.lines.isEmpty());
    EXPECT_TRUE(messageBoxes_.messages.empty());
}
