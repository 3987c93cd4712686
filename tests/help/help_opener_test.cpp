#include "help/help_opener.h"
#include "output/paper/qt_printer.h"
#include "platform/qt/system_help_viewer.h"
#include "support/fake_message_boxes.h"
#include "support/fake_print_preview.h"
#include "support/fake_processes.h"
#include "support/files.h"

#include <QDir>
#include <QTemporaryDir>

using test_support::eventually;

namespace {

class NoDialog : public platform::PrinterSetup {
public:
    Outcome ask() override { return Outcome::Cancelled; }
};

class OpenHelp : public testing::Test {
protected:
    OpenHelp() : path_(qgetenv("PATH")) { qputenv("PATH", tools.path().toUtf8()); }
    ~OpenHelp() override { qputenv("PATH", path_); }

    void installWine() {
        test_support::writeProgram(tools.filePath("wine"), "#!/bin/sh\necho \"$*\" >> seen\n");
    }
    void writeHelpFile() { test_support::writeFile(course.filePath("Zekx.HLP"), "aide"); }
    QByteArray seen() const { return test_support::readFile(course.filePath("seen")); }

    QTemporaryDir course, tools;
    QString installDir = course.path() + '/';
    test_support::FakeActivator activator;
    platform::SystemHelpViewer viewer{activator};
    NoDialog setup;
    page::FontBook fonts;
    output::QtPrinter printer{fonts};
    test_support::FakeMessageBoxes messageBoxes;
    test_support::FakePrintPreview preview;
    test_support::FakePdfOpener pdfs;
    help::HelpOpener opener{
        installDir, viewer, {setup, preview, printer, fonts, messageBoxes, pdfs}};

private:
    QByteArray path_;
};

TEST_F(OpenHelp, theCoursesOwnFileGoesToWine) {
    installWine();
    writeHelpFile();
    opener.open();
    const QByteArray call = "winhlp32 " + course.filePath("Zekx.HLP").toUtf8() + '\n';
    EXPECT_TRUE(eventually([&] { return seen() == call; })) << seen().constData();
    EXPECT_FALSE(opener.window());

    opener.open(); // its window comes to the front
    ASSERT_EQ(activator.requests.size(), 1U);
    EXPECT_EQ(activator.requests[0].second, "winhlp32.exe");
    activator.result = false; // it has been closed
    opener.open();
    EXPECT_TRUE(eventually([&] { return seen() == call + call; })) << seen().constData();
}

TEST_F(OpenHelp, theManualOpensWithoutWineOrWithoutAFile) {
    writeHelpFile();
    opener.open();
    ASSERT_TRUE(opener.window());
    EXPECT_FALSE(opener.window()->isModal());
    opener.window()->close();
    EXPECT_TRUE(eventually([&] { return !opener.window(); }));

    installWine();
    QFile::remove(course.filePath("Zekx.HLP"));
    opener.open();
    auto* window = opener.window();
    ASSERT_TRUE(window);
    window->showMinimized();
    opener.open();
    EXPECT_EQ(opener.window(), window);
    EXPECT_FALSE(window->isMinimized());
    EXPECT_EQ(seen(), "");
}

} // namespace
