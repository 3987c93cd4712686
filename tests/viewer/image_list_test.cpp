#include "coursedata/course_pictures.h"
#include "coursedata/symbol_names.h"
#include "page/picture_title.h"
#include "shell/shared_state.h"
#include "support/fake_beeper.h"
#include "support/fake_message_boxes.h"
#include "support/files.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <set>

namespace {

/// A picture file of one colour; the size tells pictures apart.
void writePicture(const QString& path, int side) {
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(path, "png"));
}

TEST(SymbolNames, beginWithTheKey) {
    for (const char* name :
         {"LK-lien.svg", "lk.PNG", "Lk-a.b.gif", "LK-.jpeg", "LK.bmp", "lK--.jpg"})
        EXPECT_EQ(coursedata::symbolKey(name), "LK") << name;
    EXPECT_EQ(coursedata::symbolKey("+1-plus.svg"), "+1");
    for (const char* name : {"", "LK", "LKlien.svg", "LK-lien.txt", "L.svg", ".svg", "a.svg",
                             ".a-x.svg", "é-x.svg", "L -x.svg", "LK lien.svg"})
        EXPECT_EQ(coursedata::symbolKey(name), std::nullopt) << name;
}

TEST(ImageList, showsEverySymbolOfOurOwn) {
    coursedata::ImageList list({});
    std::set<std::string> keys;
    for (const std::string_view name : coursedata::ownSymbols()) {
        const auto key = coursedata::symbolKey(name);
        ASSERT_TRUE(key) << name;
        EXPECT_TRUE(keys.insert(*key).second) << name;
        const auto symbol = list.symbol(QString::fromStdString(*key));
        ASSERT_TRUE(symbol) << name;
        EXPECT_EQ(symbol->size(), QSize(24, 24)) << name;
        const QImage image = symbol->image({24, 24});
        int drawn = 0;
        for (int y = 0; y < 24; ++y)
            for (int x = 0; x < 24; ++x)
                drawn += qAlpha(image.pixel(x, y)) > 128;
        EXPECT_GT(drawn, 20) << name;
    }
    EXPECT_GE(keys.size(), 40u);
    EXPECT_EQ(list.symbol("lk"), list.symbol("LK"));
    for (const char* key : {"", "L", "ZZ", "LKL", "/."})
        EXPECT_FALSE(list.symbol(key)) << key;
}

TEST(ImageList, aCourseAddsSymbolsAndReplacesOurs) {
    const QTemporaryDir course;
    const QString folder = course.filePath("Symbols/");
    QDir(course.path()).mkpath("Symbols/zz-folder.png");
    writePicture(folder + "lk.png", 16);
    writePicture(folder + "QQ-b.png", 17);
    writePicture(folder + "QQ-a.png", 18);
    test_support::writeFile(folder + "VI-broken.svg", "<svg");
    coursedata::ImageList list(course.path());
    EXPECT_EQ(list.symbol("LK")->size(), QSize(16, 16));
    EXPECT_EQ(list.symbol("qq")->size(), QSize(18, 18));
    EXPECT_EQ(list.symbol("SU")->size(), QSize(24, 24));
    EXPECT_FALSE(list.symbol("VI"));
    EXPECT_FALSE(list.symbol("ZZ"));
}

TEST(CoursePictures, readFilesOnceUntilTheyChange) {
    const QTemporaryDir course;
    struct NoDrives : platform::Drives {
        std::map<QChar, QString> letters() const override { return {}; }
    } drives;
    shell::SharedState state;
    state.InstallDir = course.path() + '/';
    test_support::FakeMessageBoxes messageBoxes;
    test_support::FakeBeeper beeper;
    coursedata::DataLocation location(state, drives, messageBoxes, beeper);
    coursedata::ImageList symbols(course.path());
    coursedata::CoursePictures pictures(location, symbols);

    writePicture(course.filePath("Fig.PNG"), 5);
    const QString path = pictures.locatePicture("x\\fig.png");
    const auto first = pictures.load(path);
    EXPECT_EQ(first->size(), QSize(5, 5));
    EXPECT_EQ(pictures.load(path), first);
    writePicture(path, 300);
    EXPECT_EQ(pictures.load(path)->size(), QSize(300, 300));

    std::weak_ptr<const page::Picture> old = pictures.load(path);
    for (int other = 0; other < 40; ++other) {
        const QString name = course.filePath(QString::number(other));
        test_support::writeFile(name, "no picture");
        EXPECT_FALSE(pictures.load(name));
    }
    EXPECT_TRUE(old.expired());

    // What the course says of its pictures, from one moment to the next.
    const auto described = [&] { return pictures.load(path)->description().toStdString(); };
    EXPECT_EQ(described(), "");
    test_support::writeFile(
        course.filePath("Descriptions.TXT"),
        "\xEF\xBB\xBF# Figures\r\nsans rien\r\nFIG.png\u00A0:  Une  figure : vue de "
        "près\r\nfig.png : autre\r\n");
    EXPECT_EQ(described(), "Une figure : vue de près");
    EXPECT_EQ(pictures.load(path), pictures.load(path));
    EXPECT_EQ(pictures.load(path)->size(), QSize(300, 300));
    test_support::writeFile(course.filePath("Descriptions.TXT"), QByteArray(2 << 20, 'x'));
    EXPECT_EQ(described(), "");
    QFile::remove(course.filePath("Descriptions.TXT"));
    EXPECT_EQ(described(), "");

    // A drawing may say it itself; that of a part of it is not meant.
    const QString drawing = course.filePath("pendule_simple.svg");
    const auto title = [&] {
        const page::PictureOperation shown{
            {}, 0, 0, 0, 0, pictures.load(drawing), "pendule_simple.svg", false};
        return page::pictureTitle(shown).toStdString();
    };
    const QByteArray part = "<svg width='9' height='9'><g><title>Le fil</title></g>";
    test_support::writeFile(drawing, part + "</svg>");
    EXPECT_EQ(title(), "Image pendule simple");
    test_support::writeFile(drawing, part + "<title> Un\npendule </title></svg>");
    EXPECT_EQ(title(), "Un pendule");
    test_support::writeFile(course.filePath("descriptions.txt"), "Pendule_simple.SVG:écarté\n");
    EXPECT_EQ(title(), "écarté");

    // Names that are none are not files of the current directory.
    const QString before = QDir::currentPath();
    QDir::setCurrent(course.path());
    writePicture("  ", 5);
    EXPECT_FALSE(pictures.load(pictures.locatePicture("  ")));
    QDir::setCurrent(before);
}

} // namespace
