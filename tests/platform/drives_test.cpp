#include "platform/drive_search.h"
#include "platform/qt/mounted_drives.h"

#include <gtest/gtest.h>

#include <atomic>
#include <semaphore>
#include <thread>

using Letters = std::map<QChar, QString>;

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

TEST(Drives, volumesAreThoseOfDevices) {
    EXPECT_EQ(platform::volumesIn("sysfs /sys sysfs rw 0 0\n"
                                  "/dev/sda1 / ext4 rw 0 0\n"
                                  "server:/home /home nfs4 rw 0 0\n"
                                  "/dev/fuse /run/user/1000/doc fuse rw 0 0\n"
                                  "/dev/sr0 /media/Le\\040cours\\134\\0402 iso9660 ro 0 0\n"
                                  "/dev/sdb1 /media/a\\9\\04 vfat rw 0 0\n"
                                  "/dev/sdc1\n\n"),
              (QStringList{"/", "/media/Le cours\\ 2", "/media/a\\9\\04"}));
}

TEST(Drives, theCourseHasADiscOfItsOwnWhereThereIsNoOther) {
    EXPECT_EQ(platform::MountedDrives("/course").letters().at(u'C'), "/course/disc");
    EXPECT_FALSE(platform::MountedDrives("").letters().contains(u'C'));
    const platform::MountedDrives mapped("/course", {{u'C', "/other"}, {u'Q', "/no/such"}});
    EXPECT_EQ(mapped.letters().at(u'C'), "/other");
    EXPECT_EQ(mapped.letters().at(u'Q'), "/no/such");
}

TEST(Drives, areAskedFromZDownToTheFirstThatHasTheFile) {
    struct ThreeDrives : platform::Drives {
        std::map<QChar, QString> letters() const override {
            return {{u'A', "a"}, {u'M', "m"}, {u'Z', "z"}};
        }
    } drives;
    QStringList asked;
    platform::DriveSearch search(drives,
                                 [&](const QString& top, const QString&, const QString& name) {
                                     asked << top;
                                     return top == name ? std::optional(top) : std::nullopt;
                                 });
    EXPECT_EQ(search.find("F", "m").value().letter, u'M');
    EXPECT_EQ(asked, (QStringList{"z", "m"}));
    EXPECT_FALSE(search.find("F", "none"));
    EXPECT_EQ(asked.mid(2), (QStringList{"z", "m", "a"}));
    EXPECT_EQ(search.findOn(u'A', "F", "a").value().path, "a");
    EXPECT_EQ(asked.mid(5), QStringList{"a"});
}

TEST(Drives, oneThatDoesNotAnswerHoldsUpNobodyTwice) {
    struct TwoDrives : platform::Drives {
        std::map<QChar, QString> letters() const override {
            return {{u'D', "sound"}, {u'E', "stuck"}};
        }
    } drives;
    struct Shared {
        std::binary_semaphore release{0};
        std::atomic<int> asked{0};
    };
    const auto shared = std::make_shared<Shared>();
    platform::DriveSearch search(
        drives,
        [shared](const QString& top, const QString&, const QString& name) {
            if (top == "stuck" && ++shared->asked == 1)
                shared->release.acquire();
            return std::optional(top + '/' + name);
        },
        std::chrono::milliseconds(50));
    EXPECT_EQ(search.find("F", "a").value().path, "sound/a");
    EXPECT_EQ(search.find("F", "b").value().letter, u'D');
    EXPECT_EQ(shared->asked, 1);
    // The drive counts again once it has answered.
    shared->release.release();
    while (search.find("F", "c").value().letter != u'E')
        std::this_thread::yield();
    EXPECT_EQ(shared->asked, 2);
}
