#include "authoring/drawn.h"
#include "authoring/markdown.h"

#include <gmock/gmock.h>

#include <random>

namespace {

using testing::HasSubstr;
using testing::Not;

/// Sentences of words of one to fourteen letters, in all styles.
std::string randomText(std::mt19937& random, int words) {
    const auto upTo = [&](unsigned n) { return random() % n; };
    std::string text;
    for (int i = 0; i < words; ++i) {
        std::string word;
        for (auto letters = 1 + upTo(14); letters > 0; --letters)
            word += static_cast<char>('a' + upTo(26));
        switch (upTo(12)) {
        case 0:
            word = "**" + word + "**";
            break;
        case 1:
            word = "*" + word + "*";
            break;
        case 2:
            word = "[" + word + " suite](page:" + std::to_string(upTo(1000)) + ")";
            break;
        case 3:
            word = "$\\frac{" + word + "}{x^2} + v_0^2$";
            break;
        case 4:
            word = "$\\ce{2 H2O -> SO4^2-}$";
            break;
        default:
            word += upTo(9) == 0 ? " :" : "";
        }
        text += word + (upTo(6) == 0 ? "\n" : " ");
    }
    return text;
}

TEST(Layout, keepsEveryLineWithinItsColumn) {
    std::mt19937 random(15);
    for (int i = 0; i < 60; ++i) {
        const std::string words = randomText(random, 60);
        std::string quoted = "> " + words;
        for (std::size_t at = 0; (at = quoted.find('\n', at)) != std::string::npos; at += 3)
            quoted.replace(at, 1, "\n> ");
        const std::string source =
            compiled("# " + randomText(random, 3) + "\n\n" + words + "\n\n- " + words + "\n\n" +
                     quoted + "\n\n| a | b |\n|---|--:|\n| un deux trois | quatre cinq |\n");
        const Drawn drawn(source);
        EXPECT_LE(drawn.right(page::SurfaceId::PictureTexte), 590) << source;
        EXPECT_GT(drawn.right(page::SurfaceId::PictureTexte), 450);
        EXPECT_EQ(drawn.failures(), "");
    }
}

TEST(Layout, measuresAsTheRendererDraws) {
    // A line that fills its column to the pixel stays one line, one more letter breaks it.
    for (const char* tail : {"", "$x^2$", "**gras**", "$\\frac{ab}{cd}$", "$\\vec{F}$",
                             "$\\ce{SO4^2-}$", "$\\sqrt{2}$", "![](symbole:AT)"}) {
        const auto fits = [](const std::string& line) {
            const std::string source = compiled(line + "\n");
            return faultsOf(line + "\n").empty() && source.find("\u00B6") == source.rfind("\u00B6");
        };
        std::string text = std::string(tail) + " m";
        while (fits(text + "m"))
            text += "m";
        const double right = Drawn(compiled(text + "\n")).right(page::SurfaceId::PictureTexte);
        EXPECT_LE(right, 590) << tail;
        EXPECT_GT(right, 560) << tail;
    }
}

TEST(Layout, putsTheMarginAndTheBandOnTheirSurfaces) {
    const Drawn drawn(
        compiled("> **Bandeau**\n> **Chimie** — les ions\n\nTexte.\n\n> **En marge**\n"
                 ">\n> # sel\n>\n> Un grain de sel est un empilement de cubes.\n"));
    EXPECT_GT(drawn.right(page::SurfaceId::Titre), 100);
    EXPECT_GT(drawn.right(page::SurfaceId::PictureIllus), 80);
    EXPECT_LE(drawn.right(page::SurfaceId::PictureIllus), 144);
    EXPECT_GT(drawn.right(page::SurfaceId::PictureTexte), 20);
    EXPECT_LE(drawn.right(page::SurfaceId::PictureTexte), 60);
}

TEST(Layout, writesNoLineThatIsTakenForAnother) {
    struct {
        const char* markdown;
        const char* expected;
    } rows[] = {
        {"\\##BOL1 n’est pas une directive\n", "#\n#BOL1 n’est pas une directive¶\n"},
        {"\\###\n", "#\n#\n#¶\n"},
        {"\\+++\n", "+++¶\n"},
        {"```directives\n+++\n\\+++\n##DECLIG2\n```\n", "\\+++\n\\\\+++\n##DECLIG2\n"},
        {"[a # b](page:1)\n", "##LIERTa # b#PAG001\n"},
    };
    for (const auto& row : rows)
        EXPECT_THAT(compiled(row.markdown), HasSubstr(row.expected)) << row.markdown;
}

TEST(Layout, writesWhatEachFormStandsFor) {
    struct {
        const char* markdown;
        std::vector<const char*> expected;
    } rows[] = {
        {"***mot***\n", {"##BOL1\n##C008\nmot¶\n"}},
        {"*a* **b**\n", {"##ITA1\na\n##ITA0\n \n##BOL1\nb"}},
        {"> **Attention !** Chaud.\n", {"##TAB000590 1\n", "Attention\u00A0!", "##FINTAC05\n"}},
        {"> Note.\n", {"##FINTAC02\n"}},
        {"[a](module:7/1) [b](exo:3) [c](commande:)\n", {"a#EXE071", "b#EXO003", "c#BDC000"}},
        {"[![](symbole:ME) Suite](page:2 \"Bulle\")\n",
         {"##LIERXMEBulle#PAG002", "##LIERTSuite#PAG002"}},
        {"![Choisir](menu:ME)\n\n- [Un](page:1)\n- [Deux](page:2)\n",
         {"##LIERFME\n##ADMENUn#PAG001\n##ADMENDeux#PAG002\n", "Choisir"}},
        {"![Une *figure*](f.svg#300x200)\n", {"##IHDEFf.svg300200\n", "##SI10\n", "figure"}},
        {"Film.\n\n![](chute.avi)\n", {"##VIDEOchute.avi\n"}},
        {"<!-- note -->\n\nTexte\n", {"Texte"}},
        {"a<br\n", {"a<br¶"}},
        {"| a |\n|---|\n| b |\n", {"##TAB000590 1\n", "##FINTAC04\n", "##FINTAB\n"}},
        {"1. un\n2. deux\n", {"##POX008\n1.\n##POX030\nun¶\n##POX008\n2.\n"}},
        {"9) un\n10) deux\n", {"##POX008\n9)\n##POX038\nun¶\n##POX008\n10)\n##POX038\n"}},
        {"---\n", {"##C010\n##LARGEUR590\n##RECT000\n##C000\n"}},
        {"```python\nfor i in x:\n    y = 1\n```\n",
         {"for\u00A0i\u00A0in\u00A0x:¶", "##POX036\ny\u00A0=\u00A0"
                                         "1¶"}},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(faultsOf(row.markdown), "") << row.markdown;
        for (const char* part : row.expected)
            EXPECT_THAT(compiled(row.markdown), HasSubstr(part)) << row.markdown;
    }
    EXPECT_THAT(compiled("<!-- note -->\n\nTexte\n"), Not(HasSubstr("note")));
}

TEST(Layout, handsOverWhatPicturesShow) {
    const auto page = compiler().page(
        "![](a/chute.png \"L'objet\ntombe.\")\n\n![Légende](b.svg#30x20 \"B\")\n\n![](c.svg)\n", 7,
        {});
    ASSERT_EQ(page.descriptions.size(), 2u);
    EXPECT_EQ(page.descriptions[0].picture, "chute.png");
    EXPECT_EQ(page.descriptions[0].words, "L’objet tombe.");
    EXPECT_EQ(page.descriptions[0].line, 7);
    EXPECT_EQ(page.descriptions[1].picture, "b.svg");
    EXPECT_EQ(page.text.source.find("tombe"), std::string::npos);
    const auto question = compiler().question("![](d.png \"D\")\n\n[a](réponse)\n", 1, {});
    ASSERT_EQ(question.descriptions.size(), 1u);
    EXPECT_EQ(question.descriptions[0].words, "D");
}

TEST(Layout, framesAFormulaOfSeveralLines) {
    std::string formula = "> $$ x";
    for (int i = 0; i < 30; ++i)
        formula += " = 1234";
    const Drawn drawn(compiled(formula + " $$\n\nmots\n"));
    double top = 1e9, foot = 0, lowest = 0, after = 0;
    for (const page::Operation& operation : drawn.page.recording.operations()) {
        if (const auto* line = std::get_if<page::LineOperation>(&operation)) {
            top = std::min({top, line->y1, line->y2});
            foot = std::max({foot, line->y1, line->y2});
        }
        const auto* text = std::get_if<page::TextOperation>(&operation);
        if (text && text->text.contains(u'4'))
            lowest = text->y;
        if (text && text->text == "mots")
            after = text->y;
    }
    EXPECT_GT(lowest, top + 40 * 15);
    EXPECT_GT(foot, lowest + 20 * 15);
    EXPECT_GT(after, foot);
}

TEST(Layout, keepsSignsOfTwoLinesApart) {
    // Each fills the slack between its line and the other one.
    EXPECT_THAT(compiled("$\\ce{SO4^2-}$  \n$\\ce{SO4^2-}$\n"),
                HasSubstr("##EXP−\n¶\n##PIY003\nSO\n"));
    EXPECT_THAT(compiled("$\\ce{SO4^2-}$  \nmots\n"), HasSubstr("##EXP−\n¶\nmots¶\n"));
}

} // namespace
