#include "look/spaced_label.h"
#include "platform/error_box_starter.h"
#include "platform/qt/qt_processes.h"
#include "setupinfo/maj2001.h"
#include "support/fake_message_boxes.h"
#include "support/files.h"
#include "support/plain_words.h"
#include "support/printing.h"

#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

namespace {

using test_support::eventually;

class Maj2001 : public testing::Test {
protected:
    void press(const char* button) {
        dialog.findChild<QPushButton*>(QLatin1String(button))->click();
    }

    QTemporaryDir directory;
    test_support::FakeMessageBoxes messageBoxes;
    platform::QtProcesses processes;
    platform::ErrorBoxStarter starter{processes, messageBoxes};
    setupinfo::Installation installation{QStringLiteral("Lycée"), QStringLiteral("complète"),
                                         QVersionNumber(1, 0, 5), QDate(2024, 9, 14)};
    setupinfo::Maj2001 dialog{installation, directory.path() + '/', starter, nullptr};
};

TEST_F(Maj2001, startsTheTwoProgramsAndStaysOpen) {
    dialog.show();
    // Which program ran, and where; in whatever letter case it is installed.
    const QByteArray trace("#!/bin/sh\nbasename \"$0\" > \"$PWD/trace\"\n");
    for (const auto& [button, program] :
         {std::pair("Command1", "installkx.exe"), std::pair("Command2", "MAJKX.EXE")}) {
        test_support::writeProgram(directory.filePath(program), trace);
        press(button);
        EXPECT_TRUE(eventually([&] {
            return test_support::readFile(directory.filePath("trace")).trimmed() == program;
        })) << program;
        EXPECT_TRUE(dialog.isVisible());
    }
    EXPECT_TRUE(messageBoxes.messages.empty());
    press("Command3");
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(Maj2001, aStartThatFailsIsToldByThePlatform) {
    test_support::writeFile(directory.filePath("MAJKX.EXE"), "no program");
    press("Command1");
    press("Command2");
    ASSERT_EQ(messageBoxes.messages.size(), 2u);
    EXPECT_EQ(messageBoxes.messages[0],
              (platform::Message{
                  QStringLiteral("INSTALLKX.EXE"),
                  QStringLiteral("Le programme «\u00A0INSTALLKX.EXE\u00A0» est introuvable dans le "
                                 "dossier du cours."),
                  platform::Message::Icon::Critical, platform::Message::Buttons::Ok}));
    EXPECT_TRUE(messageBoxes.messages[1].text.contains(QStringLiteral("n’est pas un programme")));
}

TEST_F(Maj2001, groundGrowsFromBlackToBlue) {
    const QImage image = dialog.grab().toImage();
    EXPECT_EQ(image.pixel(2, 0), qRgb(0, 0, 0));
    EXPECT_EQ(image.pixel(477, image.height() - 1), qRgb(0, 0, 255));
    for (int y = 1; y < image.height(); ++y) {
        EXPECT_EQ(image.pixel(2, y) & 0xffff00, 0u) << y;
        EXPECT_NEAR(qBlue(image.pixel(2, y)), 255.0 * y / (image.height() - 1), 1) << y;
    }
}

TEST_F(Maj2001, longRecordsGoOnBelow) {
    EXPECT_EQ(dialog.size(), QSize(480, 304));
    EXPECT_EQ(dialog.accessibleDescription(), installationText(installation));
    installation.type = test_support::kHostileWords; // whoever wrote the status file
    setupinfo::Maj2001 hostile(installation, directory.path() + '/', starter, nullptr);
    hostile.show();
    EXPECT_EQ(test_support::expectPlainWords(hostile), 1);
    installation.type = QString(126, u'W');
    setupinfo::Maj2001 tall(installation, directory.path() + '/', starter, nullptr);
    const auto* label = tall.findChild<QLabel*>(QStringLiteral("Label1"));
    EXPECT_EQ(label->text(), installationText(installation));
    const auto* close = tall.findChild<QPushButton*>(QStringLiteral("Command3"));
    EXPECT_GT(tall.height(), dialog.height());
    EXPECT_EQ(tall.height() - close->y(), dialog.height() - 244);
    // All 126 letters are there: as much ink as on one endless line.
    const auto ink = [](const QImage& image) {
        qint64 sum = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                sum += 255 - qGray(image.pixel(x, y));
        return sum;
    };
    const auto inkOf = [&ink](const QString& text, int width) {
        look::SpacedLabel lines(22, 16, nullptr);
        lines.setText(text);
        lines.resize(width, lines.heightForWidth(width));
        lines.setStyleSheet(QStringLiteral("background: white"));
        return ink(lines.grab().toImage());
    };
    const auto all = static_cast<double>(inkOf(installation.type, 4000));
    EXPECT_NEAR(static_cast<double>(inkOf(installation.type, 432)) / all, 1, 0.001);
}

} // namespace
