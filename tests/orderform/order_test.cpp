#include "orderform/order.h"
#include "orderform/price.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace {

using namespace orderform;

Order goodOrder() {
    Order order = newOrder();
    order[Field::Surname] = QStringLiteral("Martin");
    order[Field::FirstName] = QStringLiteral("Zoé");
    order[Field::Address] = QStringLiteral("12, rue des Tilleuls");
    order[Field::Postcode] = QStringLiteral("69003");
    order[Field::Town] = QStringLiteral("Lyon");
    return order;
}

TEST(Order, anEmptyFormIsToldAllThatIsMissingInItsOrder) {
    EXPECT_EQ(faultyFields(newOrder()),
              (std::vector{Field::Surname, Field::FirstName, Field::Address, Field::Postcode,
                           Field::Town}));
    EXPECT_TRUE(faultyFields(goodOrder()).empty());
}

TEST(Order, rulesOfTheFields) {
    struct Row {
        Field field;
        QString text;
        bool good;
    };
    for (const Row& row : {
             Row{Field::Surname, QStringLiteral("O’Brien-Łukasz"), true},
             Row{Field::Surname, QStringLiteral(" \t "), false},
             Row{Field::Surname, QString(38, u'W'), true},
             Row{Field::Surname, QString(39, u'W'), false},
             Row{Field::AddressMore, {}, true},
             Row{Field::AddressMore, QString(39, u'W'), false},
             Row{Field::Country, {}, false},
             Row{Field::Postcode, QStringLiteral(" 69 003 "), true},
             Row{Field::Postcode, QStringLiteral("6900"), false},
             Row{Field::Postcode, QStringLiteral("690034"), false},
             Row{Field::Postcode, QStringLiteral("2A004"), false},
             Row{Field::Postcode, QStringLiteral("٦٩٠٠٣"), false},
             Row{Field::Quantity, QStringLiteral("1"), true},
             Row{Field::Quantity, QStringLiteral(" 99 "), true},
             Row{Field::Quantity, QStringLiteral("0"), false},
             Row{Field::Quantity, QStringLiteral("100"), false},
             Row{Field::Quantity, QStringLiteral("-1"), false},
             Row{Field::Quantity, QStringLiteral("2,5"), false},
             Row{Field::Quantity, QStringLiteral("deux"), false},
             Row{Field::Quantity, {}, false},
             Row{Field::Quantity, QString(400, u'9'), false},
         }) {
        Order order = goodOrder();
        order[row.field] = row.text;
        EXPECT_EQ(faultOf(tidied(order), row.field).isEmpty(), row.good) << qPrintable(row.text);
    }
}

TEST(Order, postcodesAreFreeOutsideFrance) {
    for (const auto& [country, postcode, good] :
         {std::tuple("Belgique", "1000", true), std::tuple("Irlande", "", true),
          std::tuple("Canada", "H2X 1Y4", true), std::tuple(" france ", "1000", false)}) {
        Order order = goodOrder();
        order[Field::Country] = QString::fromUtf8(country);
        order[Field::Postcode] = QString::fromUtf8(postcode);
        order = tidied(order);
        EXPECT_EQ(faultyFields(order).empty(), good) << country;
        EXPECT_EQ(order[Field::Postcode], QString::fromUtf8(postcode)) << country;
    }
}

TEST(Order, textsAreTidied) {
    for (const auto& [typed, expected] : {
             std::pair(u"  Le\t \u0007 Gall\n\u0007", u"Le Gall"),
             std::pair(u"\u202EDu\u00ADpont\u200B", u"Dupont"),
             std::pair(u"\uFEFF \u200B", u""),
             std::pair(u"Zoe\u0301", u"Zo\u00E9"),
         }) {
        Order order = goodOrder();
        order[Field::Surname] = QString::fromUtf16(typed);
        EXPECT_EQ(tidied(order)[Field::Surname], QString::fromUtf16(expected));
    }
}

TEST(Price, countsInCentsAndWritesInFrench) {
    for (const auto& [cents, text] :
         {std::pair(0, u"0,00\u00A0€"), std::pair(5, u"0,05\u00A0€"),
          std::pair(kUnitPrice, u"19,90\u00A0€"), std::pair(totalAmount(1), u"23,40\u00A0€"),
          std::pair(totalAmount(99), u"1\u00A0973,60\u00A0€"),
          std::pair(123456789, u"1\u00A0234\u00A0567,89\u00A0€")})
        EXPECT_EQ(euros(cents), QString::fromUtf16(text));
}

} // namespace
