#include "viewer/page_code.h"

#include <gtest/gtest.h>

namespace {

TEST(PageCode, hasAtLeastThreeDigits) {
    struct Row {
        int number;
        QString code;
    };
    for (const Row& row : {Row{1, u"PAG001"_qs}, Row{28, u"PAG028"_qs}, Row{161, u"PAG161"_qs},
                           Row{0, u"PAG000"_qs}, Row{1161, u"PAG1161"_qs}, Row{-5, u"PAG-005"_qs}})
        EXPECT_EQ(viewer::pageCode(row.number), row.code) << row.number;
}

TEST(PageCode, readsPrefixAndArgument) {
    struct Row {
        QString code;
        QString prefix;
        double argument;
    };
    for (const Row& row : {Row{u"PAG001"_qs, u"PAG"_qs, 1}, Row{u"PAG1161"_qs, u"PAG"_qs, 161},
                           Row{u"EXE070"_qs, u"EXE"_qs, 70}, Row{u"PAGx12"_qs, u"PAG"_qs, 0},
                           Row{u"PAG 12"_qs, u"PAG"_qs, 12}, Row{u"PA"_qs, u"PA"_qs, 0},
                           Row{u""_qs, u""_qs, 0}, Row{u"12"_qs, u"12"_qs, 12}}) {
        EXPECT_EQ(viewer::codePrefix(row.code), row.prefix);
        EXPECT_EQ(viewer::codeArgument(row.code), row.argument) << qPrintable(row.code);
    }
}

} // namespace
