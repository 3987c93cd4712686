#include "common/formula.h"
#include "common/french_number.h"
#include "links/link_list.h"

#include <gtest/gtest.h>

#include <set>

TEST(FrenchNumber, isWrittenAsInFrenchTexts) {
    EXPECT_EQ(common::frenchNumber(-1234.5, 1), u"−1234,5");
    EXPECT_EQ(common::frenchNumber(-0.004, 2), u"0,00");
    EXPECT_EQ(common::frenchNumber(1234567.5, 0), u"1\u202F234\u202F568");
    EXPECT_EQ(common::frenchNumber(INFINITY, 2), u"∞");
    EXPECT_EQ(common::frenchDigits(0.058, 3), u"0,058");
    EXPECT_EQ(common::frenchDigits(12.4, 4), u"12,4");
    EXPECT_EQ(common::frenchDigits(1250.4, 3), u"1250");
    EXPECT_EQ(common::numberFrom(common::frenchNumber(-12345.5, 1)), -12345.5);
}

TEST(Formula, takesTheRoomOfItsParts) {
    const auto width = [](const char* source) {
        return common::Formula(QString::fromUtf8(source), 20).width();
    };
    const auto rises = [](const char* source) {
        return common::Formula(QString::fromUtf8(source), 20).ascent();
    };
    EXPECT_GT(width("v_0"), width("v"));
    EXPECT_LT(width("v_0"), width("v0"));
    EXPECT_LT(width("v_0^2"), width("v_{00}^{22}")); // one above the other
    EXPECT_GT(rises("\\frac{a}{b}"), rises("a"));
    EXPECT_GT(rises("\\vec{v}"), rises("v"));
    EXPECT_GT(rises("\\overline{v}"), rises("v"));
    EXPECT_EQ(width("\\overline{\\text{OA}}"), width("\\text{OA}"));
    EXPECT_EQ(width("\\text{a b}"), width("\\text{a}") + width("\\text{ b}"));
    // Unfinished commands are shown, not lost.
    for (const char* source : {"\\frac{a", "\\inconnu{a}", "a_", "}", "\\", "{{{{", "\\text{"})
        EXPECT_GE(width(source), 0) << source;
    EXPECT_GT(width("\\frac{a"), 0);
}

TEST(Links, theShippedListIsWhole) {
    std::set<QString> addresses;
    for (const links::LinkGroup& group : links::ownLinks()) {
        for (const links::Link& link : group.links)
            addresses.insert(link.address.toString());
    }
    EXPECT_GE(addresses.size(), 12u);
    EXPECT_EQ(addresses.count("https://www.bipm.org/fr/"), 1u);
}

TEST(Links, aDamagedListIsRefused) {
    const QString whole = "groupe=G\nnom=N\ntexte=T\nadresse=https://exemple.fr/\n";
    const auto groups = links::parseLinks(whole + "nom=M\nadresse=https://exemple.fr/b\ntexte=U\n");
    ASSERT_TRUE(groups && groups->size() == 1 && groups->front().links.size() == 2);
    EXPECT_EQ(groups->front().links[1].description, "U");
    for (const char* bad :
         {"nom=sans groupe\n", "groupe=G\ntexte=sans nom\n", "groupe=vide\n", "autre=1\n",
          "groupe=G\nnom=N\ntexte=T\n", "groupe=G\nnom=N\ntexte=T\nadresse=http://exemple.fr/\n",
          "groupe=G\nnom=N\ntexte=T\nadresse=file:///etc/passwd\n",
          "groupe=G\nnom=N\ntexte=T\nadresse=https://\n"})
        EXPECT_FALSE(links::parseLinks(whole + QString::fromUtf8(bad))) << bad;
}
