#include "coursetool/build.h"
#include "coursetool/captured.h"
#include "coursetool/trace.h"
#include "coursetool/trace_lines.h"
#include "coursetool/workspace.h"
#include "support/fake_pictures.h"
#include "support/fixed_metrics.h"

#include <gmock/gmock.h>

#include <sstream>

namespace {

using testing::_;
using testing::ElementsAre;
using testing::HasSubstr;
using Lines = std::vector<std::string>;

struct Trace : testing::Test {
    Workspace work;
    test_support::FixedMetrics metrics;
    test_support::FakePictures pictures;
    coursetool::Report report;

    Lines source(std::string_view text) {
        work.write("page.txt", text);
        return capturedLines([&](auto& out) {
            coursetool::trace({{}, {}, work.path("page.txt"), {}}, metrics, pictures, out, report);
        });
    }
    Lines page(int number) {
        return capturedLines([&](auto& out) {
            coursetool::trace({work.path("out"), number, {}, {}}, metrics, pictures, out, report);
        });
    }
    void buildCourse() {
        work.write("src/pages/1.page", "+++\nNumeropage = 5\ntitre = \" Un \"\n+++\nCinq¶\n");
        work.write("src/pages/2.page", "+++\nNumeropage = 7\n+++\n##OBJILLUS\nSept\n");
        ASSERT_TRUE(coursetool::build(work.path("src"), work.path("out"), report));
    }
};

TEST_F(Trace, tellsEveryOperationOfASource) {
    EXPECT_THAT(
        source("##C005\r\n##SI20\r\nA \"b\"\r\n##INTER1.20\r\n¶\r\n##POX999999\r\n##POX9999\r\n"
               "##TITBARÀ voir\r\n##OBJILLUS\r\n##UND1\r\n##ALGAuche\r\nlost"),
        ElementsAre(
            R"({"op":"text","surface":"PictureTEXTE","x":0,"y":0,"text":"A \"b\"","font":"Arial",)"
            R"("size":20,"bold":false,"italic":false,"underline":false,"ink":"#800000",)"
            R"("width":1000})",
            R"({"op":"caption","text":"Orvalente - KAROPE                  À voir"})",
            R"({"op":"surface","name":"PICTUREILLUS"})",
            R"({"op":"end","surface":"PICTUREILLUS","x":0,"y":0,"height":0,"hauteurPage":0,)"
            R"("alignement":0,"margeGauche":0,"margeDroite":2250,"interligne":1,"font":"Arial",)"
            R"("size":10,"bold":false,"italic":false,"underline":true,"ink":"#000000"})"));
}

TEST_F(Trace, endsWithTheStateOfThePage) {
    EXPECT_THAT(source("##ALDR\r\nab\r\n##INTER1.50\r\n¶\r\n##BOL1\r\n").back(),
                R"({"op":"end","surface":"PictureTEXTE","x":0,"y":300,"height":300,)"
                R"("hauteurPage":300,"alignement":2,"margeGauche":0,"margeDroite":9000,)"
                R"("interligne":1.5,"font":"Arial","size":10,"bold":true,"italic":false,)"
                R"("underline":false,"ink":"#000000"})");
}

TEST_F(Trace, namesStatementsThatWereAbandoned) {
    EXPECT_THAT(source("a\r\n##DECLIG1E99\r\n").at(1),
                HasSubstr(R"({"op":"failed","line":2,"directive":"##DECLIG1E99","reason":")"));
}

TEST_F(Trace, takesTheLineEndsOfASourceAsTheyStand) {
    EXPECT_EQ(source("a\nb\n").size(), 1u);
    EXPECT_THAT(textOf(report), HasSubstr("page.txt: rien n’en est dessiné"));
    report = {};
    EXPECT_THAT(source("a\nb\r\n").front(), HasSubstr(R"("text":"a\nb")"));
    EXPECT_EQ(textOf(report), "");
    EXPECT_THAT(source("a\r\nb\xE9\r\n"), ElementsAre(HasSubstr("\"a\""), HasSubstr("b\uFFFD"), _));
    EXPECT_THAT(textOf(report), HasSubstr("page.txt:2:2: "));
}

TEST_F(Trace, showsThePageOfANumberWithItsTitle) {
    buildCourse();
    EXPECT_THAT(page(5), ElementsAre(HasSubstr(R"("surface":"titre","x":0,)"),
                                     HasSubstr(R"("PictureTEXTE","x":0,"y":0,"text":"Cinq")"),
                                     HasSubstr(R"("hauteurPage":200)")));
    EXPECT_THAT(page(7), ElementsAre(R"({"op":"surface","name":"PICTUREILLUS"})",
                                     HasSubstr(R"("text":"Sept")"),
                                     HasSubstr(R"("surface":"PICTUREILLUS","x":400,)")));
    EXPECT_EQ(textOf(report), "");
}

TEST_F(Trace, leadsToTheFirstRecordForANumberWithoutAPage) {
    buildCourse();
    for (const int number : {6, 8, 100000, -1}) {
        report = {};
        EXPECT_THAT(page(number), testing::Contains(HasSubstr("Cinq"))) << number;
        EXPECT_THAT(textOf(report), HasSubstr("aucune page ne porte le numéro")) << number;
        EXPECT_FALSE(report.hasFaults());
    }
}

TEST_F(Trace, findsTheDatabaseInAnyLetterCase) {
    buildCourse();
    std::filesystem::rename(work.path("out/Zekx.mdb"), work.path("out/ZEKX.MDB"));
    EXPECT_THAT(page(5), testing::Contains(HasSubstr("Cinq")));
    std::filesystem::remove(work.path("out/ZEKX.MDB"));
    EXPECT_TRUE(page(5).empty());
    EXPECT_THAT(textOf(report), HasSubstr("Zekx.mdb manque"));
}

TEST(TraceLines, haveTheFieldsOfTheirOperations) {
    using page::SurfaceId;
    std::string out;
    coursetool::appendTraceLine(
        page::LineOperation{SurfaceId::Printer, 0.1, -0.0, 1e-7, 4, 0xff0000ff, 2}, out);
    coursetool::appendTraceLine(
        page::FillOperation{SurfaceId::Picture2, 1, 2, 3, 4, 0xff00ff00, page::FillMode::Mask},
        out);
    coursetool::appendTraceLine(page::ClearOperation{SurfaceId::Titre}, out);
    EXPECT_EQ(out, R"({"op":"line","surface":"printer","x1":0.1,"y1":0,"x2":1e-07,"y2":4,)"
                   R"("ink":"#0000ff","lineWidth":2})"
                   "\n"
                   R"({"op":"fill","surface":"Picture2","x":1,"y":2,"width":3,"height":4,)"
                   R"("ink":"#00ff00","mode":"mask"})"
                   "\n");
}

} // namespace
