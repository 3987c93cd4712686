#include "platform/qt/mounted_drives.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using Letters = std::map<QChar, QString>;

TEST(DriveMapping, isALetterAndADirectory) {
    EXPECT_EQ(platform::parseDriveMapping("e=/media/cours=2"),
              platform::DriveMapping(u'E', "/media/cours=2"));
    for (const char* wrong : {"", "E", "E=", "EE=/x", "=/x", "1=/x", "É=/x", "E:/x"})
        EXPECT_FALSE(platform::parseDriveMapping(QString::fromUtf8(wrong))) << wrong;
}

TEST(Drives, volumesGetTheFreeLettersFromD) {
    EXPECT_EQ(platform::lettersFor({"/one", "/two"}, {{u'D', "/mine"}, {u'A', "/floppy"}}),
              (Letters{{u'A', "/floppy"}, {u'D', "/mine"}, {u'E', "/one"}, {u'F', "/two"}}));

    QStringList many;
    for (int volume = 0; volume < 40; ++volume)
        many.append(QString::number(volume));
    const Letters letters = platform::lettersFor(many, {});
    EXPECT_EQ(letters.size(), 23u);
    EXPECT_EQ(letters.at(u'Z'), "22");
}

TEST(Drives, theCourseHasADiscOfItsOwnWhereThereIsNoOther) {
    const QTemporaryDir course;
    const QString disc = course.filePath("disc");
    EXPECT_FALSE(platform::MountedDrives(course.path()).ready().contains(u'C'));

    QDir(course.path()).mkpath("disc");
    EXPECT_EQ(platform::MountedDrives(course.path()).ready().at(u'C'), disc);

    const QTemporaryDir other;
    const platform::MountedDrives mapped(course.path(),
                                         {{u'C', other.path()}, {u'Q', "/no/such/directory"}});
    EXPECT_EQ(mapped.ready().at(u'C'), other.path());
    EXPECT_FALSE(mapped.ready().contains(u'Q'));
}
