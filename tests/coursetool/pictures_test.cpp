// Pictures and symbols of a course, as the tool sees them.

#include "coursetool/build.h"
#include "coursetool/captured.h"
#include "coursetool/symbols.h"
#include "coursetool/tool_pictures.h"
#include "coursetool/trace.h"
#include "coursetool/workspace.h"
#include "support/fixed_metrics.h"

#include <QImage>

#include <gmock/gmock.h>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

struct ToolPictures : testing::Test {
    Workspace work;
    coursetool::Report report;

    void writePicture(const std::string& relative, int width, int height) {
        work.write(relative, "");
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::blue);
        ASSERT_TRUE(image.save(QString::fromStdString(work.path(relative).string()), "png"));
    }

    std::string trace(const coursetool::TraceRequest& request) {
        const test_support::FixedMetrics metrics;
        coursetool::ToolPictures pictures(request.course, request.drives, report);
        return captured(
            [&](auto& out) { coursetool::trace(request, metrics, pictures, out, report); });
    }
    std::string symbols(const std::filesystem::path& course) {
        return captured([&](auto& out) { coursetool::listSymbols(course, false, out, report); });
    }
    void buildPage(const std::string& source) {
        work.write("src/pages/1.page", "+++\nNumeropage = 1\n+++\n" + source);
        ASSERT_TRUE(coursetool::build(work.path("src"), work.path("out"), report));
    }
};

TEST_F(ToolPictures, areFoundInTheCourseOnItsDiscAndOnMappedDrives) {
    writePicture("src/files/Fig.PNG", 20, 10);
    writePicture("src/disc/ZEKXDATA/photo.png", 30, 10);
    writePicture("drive/zekxdata/photo.png", 40, 10);
    writePicture("src/files/symbols/QZ-mien.png", 16, 16);
    buildPage("##IXAfig.png\n##IXAimages\\photo.png\n##IJAqz\n##IJALK\n##LIERISUPAG002\n");
    EXPECT_THAT(trace({work.path("out"), 1, {}, {}}),
                AllOf(HasSubstr(R"("width":300,"height":150,"name":"fig.png")"),
                      HasSubstr(R"("width":450,"height":150,"name":"photo.png")"),
                      HasSubstr(R"("width":240,"height":240,"key":"qz")"),
                      HasSubstr(R"("width":360,"height":360,"key":"LK")"),
                      HasSubstr(R"("key":"SU")")));
    EXPECT_THAT(trace({work.path("out"), 1, {}, {{'Z', work.path("drive")}}}),
                HasSubstr(R"("width":600,"height":150,"name":"photo.png")"));
    EXPECT_EQ(textOf(report), "");
}

TEST_F(ToolPictures, aMissingOneIsToldOnceAndNotAskedFor) {
    work.write("src/files/broken.gif", "GIF89a");
    buildPage(
        "##IMAnone.gif\n##IXAx\\none.gif\n##IMAbroken.gif\n##IXAbroken.gif\n##IJA§§\n##IMA  \n");
    EXPECT_THAT(trace({work.path("out"), 1, {}, {}}), Not(HasSubstr("\"picture\"")));
    EXPECT_FALSE(report.hasFaults());
    ASSERT_EQ(report.lines().size(), 2u) << textOf(report);
    EXPECT_THAT(report.lines()[0], HasSubstr("out: avertissement : « none.gif » : image introuv"));
    EXPECT_THAT(report.lines()[1], HasSubstr("« broken.gif » : ce n’est pas une image"));
}

TEST_F(ToolPictures, symbolsAreListedWithWhereTheyComeFrom) {
    const std::string ours = symbols({});
    EXPECT_THAT(ours, AllOf(testing::StartsWith("AC\tAC-accueil.svg\tOrvalente\n"),
                            HasSubstr("\nLK\tLK-lien.svg\tOrvalente\n")));
    work.write("out/Symbols/lk-autre.png", "x");
    work.write("out/Symbols/ZZ-a.svg", "x");
    work.write("out/Symbols/zz-b.svg", "x");
    work.write("out/Symbols/LISEZ-MOI.txt", "x");
    const std::string folder = work.path("out/Symbols").generic_string();
    EXPECT_THAT(symbols(work.path("out")),
                AllOf(HasSubstr("\nLK\tlk-autre.png\t" + folder + "\n"), Not(HasSubstr("LK-lien")),
                      HasSubstr("\nZZ\tZZ-a.svg\t" + folder + "\n"), Not(HasSubstr("zz-b"))));
    EXPECT_FALSE(report.hasFaults());
    ASSERT_EQ(report.lines().size(), 2u) << textOf(report);
    EXPECT_THAT(report.lines()[0], HasSubstr("LISEZ-MOI.txt: avertissement : laissé de côté"));
    EXPECT_THAT(report.lines()[1], HasSubstr("zz-b.svg: avertissement : laissé de côté : sa clé"));
    work.write("bare/Zekx.mdb", "");
    EXPECT_EQ(symbols(work.path("bare")), ours);
}

} // namespace
