#include "markup/page_bench.h"

#include <gtest/gtest.h>

namespace {

using test_support::PageBench;
using Row = test_support::PageRow;

/// "a.bmp" is 40 x 20 pixels, "cassee.gif" cannot be read, the symbol "FL" is 24 x 24.
class PictureBench : public PageBench {
public:
    PictureBench() {
        pictures.files[QStringLiteral("a.bmp")] =
            std::make_shared<test_support::PlainPicture>(QSize(40, 20));
        pictures.files[QStringLiteral("cassee.gif")] = nullptr;
        pictures.symbols[QStringLiteral("FL")] =
            std::make_shared<test_support::PlainPicture>(QSize(24, 24));
    }
};

class Pictures : public testing::TestWithParam<Row> {};

TEST_P(Pictures, draws) {
    PictureBench bench;
    EXPECT_EQ(test_support::lines(bench.draw(QString::fromUtf16(GetParam().source))),
              test_support::lines(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Files, Pictures,
    testing::Values(Row{"overText",
                        u"##POX010\n##IMAa.bmp\nb\n",
                        {"picture 150,0 600,300 a.bmp", "print 150,0 \"b\" Arial 10"}},
                    Row{"aboveTextAligned",
                        u"##ALCE\n##IXAa.bmp\n##ALGA\nb\n",
                        {"picture 4200,0 600,300 a.bmp", "print 4200,300 \"b\" Arial 10"}},
                    Row{"ofGivenSizeAtTheRight",
                        u"##ALDR\n##IHDEFa.bmp200100\n##ALGA\nb\n",
                        {"picture 6000,0 3000,1500 a.bmp", "print 6000,1500 \"b\" Arial 10"}},
                    Row{"thatAreMissingChangeNothing",
                        u"##ALCE\n##IXAb.bmp\n##IHDEFb.bmp200100\n##ALGA\nb\n",
                        {"print 0,0 \"b\" Arial 10"}},
                    // The statements that can be carried out are: the room stays.
                    Row{"thatCannotBeReadPaintNothing",
                        u"##IXAcassee.gif\n##IHDEFcassee.gif200100\nb\n",
                        {"failed 1 ##IXAcassee.gif", "failed 2 ##IHDEFcassee.gif200100",
                         "print 0,1500 \"b\" Arial 10"}},
                    Row{"sizesThatAreNone",
                        u"##IHDEFa.bmp000100\n##IHDEFa.bmp-10010\n##IHDEFa.bmp9E9100\nb\n",
                        {"failed 3 ##IHDEFa.bmp9E9100", "print 0,3150 \"b\" Arial 10"}},
                    Row{"shorterThanTheirSize", u"##IHDEF20\n", {}}));

INSTANTIATE_TEST_SUITE_P(Symbols, Pictures,
                         testing::Values(Row{"standInTheLine",
                                             u"a\n##IJAFL\nb\n",
                                             {"print 0,0 \"a\" Arial 10", "symbol 100,0 360,360 FL",
                                              "print 460,0 \"b\" Arial 10"}},
                                         Row{"withoutAPictureMoveNothing",
                                             u"##IJA??\nb\n",
                                             {"print 0,0 \"b\" Arial 10"}}));

TEST(PagesOnPaper, leaveTheOtherSurfacesAlone) {
    PictureBench bench;
    bench.as = markup::DrawnAs::Paper;
    EXPECT_EQ(bench.draw("un\n##OBJTIT\n##IMAa.bmp\nperdu\n##OBJILLUS\nperdu\n##OBJTAILLE\n"
                         "##OBJPRINCIPAL\ndeux\n##TITBARtitre\n##VIDEOa.avi\n##OBJILLUS\n"),
              QStringList({"print 0,0 \"un\" Arial 10", "print 0,0 \"deux\" Arial 10"}));
    EXPECT_EQ(bench.page.end.surface, page::SurfaceId::Printer);
    EXPECT_FALSE(bench.page.caption);
    EXPECT_FALSE(bench.page.videoPage);
    EXPECT_EQ(bench.heightPx(page::SurfaceId::PictureIllus), 0);
}

TEST(PageVideo, isNamedByThePageAndByNoOther) {
    PageBench bench;
    EXPECT_EQ(bench.draw("##VIDEOchute.avi\n"), QStringList({"video chute.avi"}));
    EXPECT_EQ(bench.page.videoPage, QStringLiteral("chute.avi"));
    bench.draw("##VIDEO\n");
    EXPECT_EQ(bench.page.videoPage, QString()) << "a video without a name is one all the same";
    bench.draw("x\n");
    EXPECT_EQ(bench.page.videoPage, std::nullopt);
}

} // namespace
