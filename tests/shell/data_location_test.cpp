#include "coursedata/data_location.h"
#include "support/fake_beeper.h"
#include "support/fake_message_boxes.h"
#include "support/files.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using platform::Answer;
using test_support::writeFile;

/// A course and the drives D and E, which can be taken out.
struct DataLocation : testing::Test, platform::Drives {
    DataLocation() {
        for (const char* folder : {"course", "d/ZEKXDATA", "d/ZEKXV", "e/zekxdata", "e/ZekxV"})
            QDir(work.path()).mkpath(folder);
        state.InstallDir = work.path() + "/course/";
        letters_ = {{u'D', work.filePath("d")}, {u'E', work.filePath("e")}};
    }

    std::map<QChar, QString> letters() const override { return letters_; }
    void put(const QString& file) { writeFile(work.filePath(file), "x"); }
    /// A path as it comes back, from the work directory on.
    QString short_(const QString& path) const { return QDir(work.path()).relativeFilePath(path); }
    QString picture(const QString& name) { return short_(location.locatePicture(name)); }
    QString giveUp(const QString& name) {
        messageBoxes.answers = {Answer::Cancel};
        return location.locatePicture(name);
    }

    QTemporaryDir work;
    std::map<QChar, QString> letters_;
    coursedata::DataDirectories state;
    test_support::FakeMessageBoxes messageBoxes;
    test_support::FakeBeeper beeper;
    coursedata::DataLocation location{state, *this, messageBoxes, beeper};
};

TEST_F(DataLocation, prefersTheInstallationDirectoryThenTheHighestLetter) {
    put("d/ZEKXDATA/fig.gif");
    EXPECT_EQ(picture("fig.gif"), "d/ZEKXDATA/fig.gif");
    EXPECT_EQ(state.PictureDataDir, "D:\\ZEKXDATA\\");
    put("e/zekxdata/Fig.GIF");
    EXPECT_EQ(picture("images\\FIG.gif"), "e/zekxdata/Fig.GIF");
    EXPECT_EQ(state.PictureDataDir, "E:\\ZEKXDATA\\");
    put("course/fig.gif");
    EXPECT_EQ(picture("fig.gif"), "course/fig.gif");
    EXPECT_EQ(state.PictureDataDir, "E:\\ZEKXDATA\\");
    EXPECT_EQ(messageBoxes.messages.size() + static_cast<std::size_t>(beeper.beeps), 0u);
}

TEST_F(DataLocation, looksForVideosOnDrivesAlone) {
    put("course/clip.avi");
    put("e/zekxdata/clip.avi");
    messageBoxes.answers = {Answer::Cancel};
    EXPECT_EQ(location.locateVideo("clip.avi"), "");
    EXPECT_EQ(location.findBesideLastVideo("clip.avi"), std::nullopt);
    put("e/ZekxV/clip.avi");
    EXPECT_EQ(short_(location.locateVideo("clip.avi")), "e/ZekxV/clip.avi");
    EXPECT_EQ(state.VideoDataDir, "E:\\ZEKXV\\");
    EXPECT_EQ(state.PictureDataDir, "");

    put("e/ZekxV/other.avi");
    put("d/ZEKXV/third.avi");
    EXPECT_EQ(short_(location.findBesideLastVideo("x\\OTHER.avi").value()), "e/ZekxV/other.avi");
    for (const char* name : {"third.avi", "", "..", "ZekxV"})
        EXPECT_EQ(location.findBesideLastVideo(name), std::nullopt) << name;
    letters_.erase(u'E');
    EXPECT_EQ(location.findBesideLastVideo("other.avi"), std::nullopt);
}

TEST_F(DataLocation, asksForTheDiscUntilItIsThereOrGivenUp) {
    EXPECT_EQ(giveUp("fig.gif"), "");
    ASSERT_EQ(messageBoxes.messages.size(), 1u);
    EXPECT_EQ(messageBoxes.messages[0],
              (platform::Message{
                  "CD-ROM absent",
                  "Veuillez introduire le CD-ROM « ORVALENTE SCIENCES » dans le lecteur.",
                  platform::Message::Icon::Exclamation, platform::Message::Buttons::RetryCancel}));
    EXPECT_EQ(beeper.beeps, 1);

    /// Inserts the disc while the second question is on the screen.
    struct Inserting : platform::MessageBoxes {
        DataLocation& test;
        int asked = 0;
        explicit Inserting(DataLocation& t) : test(t) {}
        Answer ask(const platform::Message&) override {
            if (++asked == 2)
                test.put("d/ZEKXDATA/fig.gif");
            return Answer::Retry;
        }
    } inserting(*this);
    coursedata::DataLocation retrying(state, *this, inserting, beeper);
    EXPECT_EQ(short_(retrying.locatePicture("fig.gif")), "d/ZEKXDATA/fig.gif");
    EXPECT_EQ(inserting.asked, 2);
    EXPECT_EQ(beeper.beeps, 1);
}

TEST_F(DataLocation, leavesBlankNamesAlone) {
    EXPECT_EQ(location.locatePicture(""), "");
    EXPECT_EQ(location.locatePicture("   "), "   ");
    EXPECT_EQ(location.locateVideo("  "), "  ");
    EXPECT_TRUE(messageBoxes.messages.empty());
}

TEST_F(DataLocation, noNameLeavesItsDirectory) {
    put("secret.gif");
    put("course/fig.gif");
    QDir(work.path()).mkpath("course/folder");
    const QString absolute = work.filePath("secret.gif");
    for (const QString& name :
         {QStringLiteral("../secret.gif"), QStringLiteral("..\\secret.gif"),
          QStringLiteral("course\\..\\..\\secret.gif"), absolute,
          QString(absolute).replace('/', '\\'), QStringLiteral("D:secret.gif"),
          QStringLiteral(".."), QStringLiteral("../.."), QStringLiteral("fig.gif/"),
          QStringLiteral("D:"), QStringLiteral("folder"), QStringLiteral("*.gif"),
          QChar(u'\0') + QStringLiteral("fig.gif"), QStringLiteral(".")})
        EXPECT_EQ(giveUp(name), "") << qPrintable(name);
    for (const QString& name :
         {QStringLiteral("/etc/fig.gif"), QString("E:\\x\\fig.gif"), QStringLiteral("D:fig.gif"),
          QStringLiteral("fig.gif") + QChar(u'\0') + "/../secret.gif"})
        EXPECT_EQ(picture(name), "course/fig.gif") << qPrintable(name);
}

TEST_F(DataLocation, passesOverDrivesThatCannotBeRead) {
    put("d/ZEKXDATA/fig.gif");
    put("file");
    letters_[u'X'] = work.filePath("file");
    letters_[u'Y'] = "/no/such/directory";
    EXPECT_EQ(picture("fig.gif"), "d/ZEKXDATA/fig.gif");
}

} // namespace
