#include "markup/page_bench.h"

#include <gtest/gtest.h>

namespace {

using Row = test_support::PageRow;

class Styling : public test_support::PageCase {};

TEST_P(Styling, draws) {
    draws();
}

/// A point in each of these inks, side by side; "" is black.
QStringList inks(const QStringList& colours) {
    QStringList points;
    for (const QString& colour : colours)
        points += QStringLiteral("print %1,0 \".\" Arial 10").arg(100 * points.size()) +
                  (colour.isEmpty() ? colour : " #" + colour);
    return points;
}

INSTANTIATE_TEST_SUITE_P(
    Fonts, Styling,
    testing::Values(
        Row{"size", u"##SI14\nx\n", {"print 0,0 \"x\" Arial 14"}},
        // Sizes are written with two digits, meant so.
        Row{"oneDigitIsSizeZero", u"##SI9\nx\n", {"print 0,0 \"x\" Arial 0"}},
        Row{"aNegativeSizeIsRefused",
            u"##SI-5\nx\n",
            {"failed 1 ##SI-5", "print 0,0 \"x\" Arial 10"}},
        Row{"aHugeSizeIsRefused", u"##SIE9\n##SI9E9\nx\n", {"print 0,0 \"x\" Arial 0"}},
        Row{"stylesOnAndOff",
            u"##BOL1\n##ITA1\n##UND1\nx\n##BOL0\n##ITA0\n##UND0\ny\n",
            {"print 0,0 \"x\" Arial 10 bold italic underline", "print 100,0 \"y\" Arial 10"}},
        Row{"aPrefixIsEnough", u"##BOL1 gras\nx\n", {"print 0,0 \"x\" Arial 10 bold"}},
        // The taller face is raised so that the text keeps its foot.
        Row{"aFaceKeepsTheFoot",
            u"##FONT01\nl\n##FONT00\nx\n",
            {"print 0,-100 \"l\" Symbol 10", "print 100,0 \"x\" Arial 10"}},
        Row{"faces",
            u"##FONT02\na\n##FONT03\nb\n##FONT04\nc\n##FONT05\nd\n",
            {"print 0,0 \"a\" Times new roman 10", "print 100,0 \"b\" Wingdings 10",
             "print 200,0 \"c\" Comic Sans MS 10", "print 300,0 \"d\" Comic Sans MS 10"}}));

INSTANTIATE_TEST_SUITE_P(
    Inks, Styling,
    testing::Values(Row{"ofTheTable",
                        u"##C001\n.\n##C002\n.\n##C003\n.\n##C004\n.\n##C005\n.\n"
                        u"##C006\n.\n##C007\n.\n##C008\n.\n##C009\n.\n##C010\n.\n"
                        u"##C011\n.\n##C012\n.\n##C013\n.\n##C014\n.\n##C000\n.\n",
                        inks({"000080", "0000c8", "0000ff", "008000", "800000", "5a5ad2", "00ff00",
                              "b46400", "1eb450", "808080", "ff0000", "00c000", "8080ff", "00c0c0",
                              ""})},
                    Row{"numbersOutsideKeepTheInk",
                        u"##C005\n##C015\n##C-01\nx\n",
                        {"print 0,0 \"x\" Arial 10 #800000"}},
                    Row{"oneDigitIsBlack", u"##C005\n##C3\nx\n", {"print 0,0 \"x\" Arial 10"}},
                    Row{"aHugeNumberIsAbandoned",
                        u"##C9E9\nx\n",
                        {"failed 1 ##C9E9", "print 0,0 \"x\" Arial 10"}}));

INSTANTIATE_TEST_SUITE_P(
    Spacing, Styling,
    testing::Values(Row{"factor",
                        u"##INTER1.50\na¶\nb\n",
                        {"print 0,0 \"a\" Arial 10", "print 0,300 \"b\" Arial 10"}},
                    Row{"wholeFactor",
                        u"##INTER0002\na¶\nb\n",
                        {"print 0,0 \"a\" Arial 10", "print 0,400 \"b\" Arial 10"}},
                    // "INTER2" reads "TER2", which is 0: factors are written with four characters.
                    Row{"fewerCharactersAreZero",
                        u"##INTER2\na¶\nb\n",
                        {"print 0,0 \"a\" Arial 10", "print 0,0 \"b\" Arial 10"}},
                    Row{"anInfiniteFactorIsAbandoned",
                        u"##INTER9E99\na¶\nb\n",
                        {"failed 1 ##INTER9E99", "print 0,0 \"a\" Arial 10",
                         "print 0,200 \"b\" Arial 10"}}));

} // namespace
