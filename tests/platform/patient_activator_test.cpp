#include "platform/qt/patient_activator.h"
#include "support/fake_processes.h"
#include "support/files.h"

using test_support::eventually;

using Request = std::pair<qint64, QString>;

TEST(PatientActivator, asksAgainForTheNewestWindowOnly) {
    test_support::FakeActivator windows;
    platform::PatientActivator activator(windows);
    windows.result = false;
    EXPECT_FALSE(activator.activate(1, "first.exe"));
    EXPECT_FALSE(activator.activate(2, "second.exe"));
    EXPECT_TRUE(eventually([&] { return windows.requests.size() >= 4; }));
    EXPECT_EQ(windows.requests[2], Request(2, "second.exe"));
    EXPECT_EQ(windows.requests[3], Request(2, "second.exe"));

    windows.result = true;
    EXPECT_TRUE(activator.activate(3, "third.exe"));
    EXPECT_EQ(windows.requests.back(), Request(3, "third.exe"));
}

TEST(PatientActivator, saysWhoseWindowIsNotToBeFound) {
    test_support::FakeActivator windows;
    QStringList lost;
    platform::PatientActivator activator(windows, [&](const QString& name) { lost << name; });
    EXPECT_TRUE(activator.activate(1, "gone.exe"));
    windows.result = false; // it has ended without a word
    EXPECT_FALSE(activator.activate(1, "gone.exe"));
    EXPECT_EQ(lost, QStringList{"gone.exe"}); // at once

    EXPECT_FALSE(activator.activate(2, "slow.exe"));
    EXPECT_EQ(lost.size(), 1);
    EXPECT_TRUE(eventually([&] { return lost.size() == 2; }));
    EXPECT_EQ(lost.back(), "slow.exe");
}
