#include "app/command_line.h"
#include "app/drive_option.h"
#include "look/scale.h"

#include <gtest/gtest.h>

namespace {

app::CommandLine read(const QStringList& arguments) {
    return app::readCommandLine(QStringList{QStringLiteral("orvalente")} + arguments);
}

TEST(CommandLine, takesValuesBehindAnEqualsSignOrABlank) {
    const auto line =
        read({"--course", "/un cours", "--drive=e=/mnt", "--drive", "F=/a=b", "--scale", "1,5"});
    EXPECT_FALSE(line.message.has_value());
    EXPECT_EQ(line.course, QStringLiteral("/un cours"));
    EXPECT_EQ(line.drives.at(u'E'), QStringLiteral("/mnt"));
    EXPECT_EQ(line.drives.at(u'F'), QStringLiteral("/a=b"));
    EXPECT_EQ(line.scale, 1.5);
    EXPECT_TRUE(read({"--scale", "auto"}).scaleAuto);
    EXPECT_FALSE(read({}).course.has_value());
}

TEST(CommandLine, wrongCallsAreExplained) {
    for (const QStringList& wrong : {QStringList{"--curse", "x"},
                                     {"--course"},
                                     {"--course="},
                                     {"--scale", "0.5"},
                                     {"--scale", "gros"},
                                     {"--drive", "/mnt"},
                                     {"/un/cours"}}) {
        const auto line = read(wrong);
        EXPECT_TRUE(line.isError) << wrong.join(u' ').toStdString();
        EXPECT_TRUE(line.message.has_value());
    }
    EXPECT_FALSE(read({"--help"}).isError);
    EXPECT_TRUE(read({"--help"}).message->contains(u"--course"));
}

TEST(DriveOption, isALetterAndADirectory) {
    std::map<char, std::string> drives;
    for (const char* right : {"e=/media/cours=2", "F=/été", "E=/again"})
        EXPECT_FALSE(app::addDrive(right, drives)) << right;
    EXPECT_EQ(drives, (std::map<char, std::string>{{'E', "/again"}, {'F', "/été"}}));
    for (const char* wrong : {"", "E", "E=", "EE=/x", "=/x", "1=/x", "{=/x", "É=/x", "E:/x"})
        EXPECT_EQ(app::addDrive(wrong, drives),
                  "« " + std::string(wrong) + " » n’est pas de la forme L=DOSSIER");
    EXPECT_EQ(drives.size(), 2u);
}

TEST(Scale, fitsTheScreen) {
    EXPECT_EQ(look::automaticScale(1024, 768), 1);
    EXPECT_EQ(look::automaticScale(1920, 1080), 1.5);
    EXPECT_EQ(look::automaticScale(3840, 2160), 3);
    EXPECT_EQ(look::automaticScale(640, 480), 1);
    EXPECT_EQ(look::automaticScale(20000, 20000), look::kLargestScale);
    EXPECT_EQ(look::fittingScale(2, 1920, 1080), 1.8);
    EXPECT_EQ(look::fittingScale(1.5, 1920, 1080), 1.5);
    EXPECT_EQ(look::fittingScale(3, 800, 600), 1);
}

} // namespace
