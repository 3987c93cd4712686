#pragma once

#include "fake_reports.h"
#include "raw_status_file.h"
#include "shell/launcher.h"
#include "support/fake_message_boxes.h"
#include "support/fake_processes.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A launcher in a directory whose status file says that no module runs.
class LauncherCase : public testing::Test {
protected:
    LauncherCase() {
        state_.InstallDir = directory_.path() + '/';
        state_.StatusFilePath = directory_.filePath(raw_status_file::kName);
        raw_status_file::writeAllNon(directory_.path());
    }

    void put(int record, const QByteArray& text) {
        raw_status_file::put(directory_.path(), record, text);
    }

    QTemporaryDir directory_;
    shell::SharedState state_;
    test_support::FakeMessageBoxes messageBoxes_;
    test_support::FakeStarter starter_;
    test_support::FakeActivator activator_;
    FakeReports reports_;
    shell::Launcher launcher_{state_, messageBoxes_, starter_, activator_, reports_};
};
