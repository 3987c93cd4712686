#include "viewer/page_code.h"

#include <gtest/gtest.h>

namespace {

TEST(PageCode, hasAtLeastThreeDigits) {
    struct Row {
        int number;
        QString code;
    };
    for (const Row& row :
         {Row{1, QStringLiteral("PAG001")}, Row{28, QStringLiteral("PAG028")},
          Row{161, QStringLiteral("PAG161")}, Row{0, QStringLiteral("PAG000")},
          Row{1161, QStringLiteral("PAG1161")}, Row{-5, QStringLiteral("PAG-005")}})
        EXPECT_EQ(viewer::pageCode(row.number), row.code) << row.number;
}

TEST(PageCode, readsPrefixAndArgument) {
    struct Row {
        QString code;
        QString prefix;
        double argument;
    };
    for (const Row& row : {Row{QStringLiteral("PAG001"), QStringLiteral("PAG"), 1},
                           Row{QStringLiteral("PAG1161"), QStringLiteral("PAG"), 161},
                           Row{QStringLiteral("EXE070"), QStringLiteral("EXE"), 70},
                           Row{QStringLiteral("PAGx12"), QStringLiteral("PAG"), 0},
                           Row{QStringLiteral("PAG 12"), QStringLiteral("PAG"), 12},
                           Row{QStringLiteral("PA"), QStringLiteral("PA"), 0},
                           Row{QStringLiteral(""), QStringLiteral(""), 0},
                           Row{QStringLiteral("12"), QStringLiteral("12"), 12}}) {
        EXPECT_EQ(viewer::codePrefix(row.code), row.prefix);
        EXPECT_EQ(viewer::codeArgument(row.code), row.argument) << qPrintable(row.code);
    }
}

} // namespace
