#include "fake_reports.h"
#include "platform/qt/qt_processes.h"
#include "raw_status_file.h"
#include "shell/launcher.h"
#include "support/fake_message_boxes.h"
#include "support/fake_processes.h"

#include <QTemporaryDir>

using test_support::eventually;

namespace {

/// A sibling program: keeps the argument it finds, says "OUI" in its record until a file "quit"
/// appears, then "NON". It ends by itself when nobody asks it to.
constexpr const char* kModule23 = R"(#!/bin/sh
say() { printf "\003\000$1" | dd of="$ORVALENTE_STATUS_FILE" bs=1 seek=$((22 * 128)) conv=notrunc 2>/dev/null; }
dd if="$ORVALENTE_STATUS_FILE" of=argument bs=128 skip=30 count=1 2>/dev/null
echo $$ > pid
say OUI
tries=600
while [ ! -e quit ] && [ $tries -gt 0 ]; do sleep 0.05; tries=$((tries - 1)); done
say NON
echo $$ > ended
)";

} // namespace

TEST(LauncherProcesses, aRealModuleIsStartedFoundRunningAndStartedAgain) {
    const QTemporaryDir directory, personal;
    shell::SharedState state;
    state.InstallDir = directory.path() + '/';
    state.StatusFilePath = personal.filePath(raw_status_file::kName);
    raw_status_file::writeAllNon(personal.path());
    test_support::writeProgram(directory.filePath("SIMU23.EXE"), kModule23);

    test_support::FakeMessageBoxes messageBoxes;
    platform::QtProcesses starter;
    test_support::FakeActivator activator;
    FakeReports reports;
    shell::Launcher launcher(state, messageBoxes, starter, activator, reports);
    const auto record23 = [&] { return raw_status_file::characters(personal.path(), 23); };
    const auto pid = [&] { return *state.SiblingProcessIds.slot(23); };

    launcher.launchModule(235);
    ASSERT_TRUE(eventually([&] { return record23() == "OUI"; }));
    EXPECT_EQ(test_support::readFile(directory.filePath("argument")).left(17),
              raw_status_file::counted("Exercice 05.E21"));
    const std::int32_t first = pid();
    EXPECT_EQ(test_support::readFile(directory.filePath("pid")).trimmed(),
              QByteArray::number(first));

    launcher.launchModule(230);
    EXPECT_EQ(pid(), first);
    ASSERT_EQ(activator.requests.size(), 2u);
    EXPECT_EQ(activator.requests[1].first, first);

    test_support::writeFile(directory.filePath("quit"), "");
    ASSERT_TRUE(eventually([&] { return record23() == "NON"; }));
    launcher.launchModule(230);
    EXPECT_NE(pid(), first);
    EXPECT_TRUE(reports.lines.isEmpty());
    // The second one ends at once, too.
    EXPECT_TRUE(eventually([&] {
        return test_support::readFile(directory.filePath("ended")).trimmed() ==
               QByteArray::number(pid());
    }));
}
