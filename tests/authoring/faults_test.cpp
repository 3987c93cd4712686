#include "authoring/markdown.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

TEST(Faults, nameThePlaceInTheMarkdown) {
    struct {
        const char* markdown;
        const char* expected;
    } rows[] = {
        {"un\n\nété [a](page:1000)\n", "3:6 « page:1000 »"},
        {"[a](http://x.fr)\n", "un lien mène à"},
        {"[a](module:3)\n", "un lien mène à"},
        {"[a](module:7/12)\n", "un lien mène à"},
        {"[a](page:1 \"bulle\")\n", "une bulle d’aide"},
        {"#### Quatre\n", "1:6 une page a trois niveaux"},
        {"texte <b>gras</b>\n", "1:7 « <b> »"},
        {"<div>\ntexte\n</div>\n", "1:1 une page ne contient pas de HTML"},
        {"<!-- a --> mots perdus\n", "seuls sur leurs lignes"},
        {"a &eacute;\n", "écrire le caractère lui-même"},
        {"a¶\n", "1:2 le signe « ¶ »"},
        {"- [ ] case\n", "que dans une question"},
        {"- ```\n  code\n  ```\n", "commence par du texte"},
        {"> > cadre\n", "un cadre ne va ni"},
        {"- a\n\n  > cadre\n", "un cadre ne va ni"},
        {"> | a |\n> |---|\n> | b |\n", "un tableau ne va ni"},
        {"> a\n>\n> > **En marge** b\n", "au premier niveau"},
        {"mot ![légende](f.svg) mot\n", "se met seul"},
        {"![a](f.svg#3x)\n", "sa taille en pixels"},
        {"![a](film.avi)\n", "un film n’a pas de légende"},
        {"![](a.avi)\n\n![](b.avi)\n", "3:5 une page a un seul film"},
        {"![](symbole:ABC)\n", "deux caractères"},
        {"![mots](symbole:AT)\n", "un symbole n’a ni texte"},
        {"![M](menu:ME)\n", "la liste des liens"},
        {"![M](menu:ME \"b\")\n\n- [a](page:1)\n", "1:3 un menu n’a pas de bulle"},
        {"![M](menu:ME)\n\n- [a](page:1 \"b\")\n", "un choix de menu n’a pas"},
        {"![M](menu:ME)\n\n- a\n", "est un lien, et rien d’autre"},
        {"[$x$](page:1)\n", "ne peut pas être un lien"},
        {"[fer](réponse)\n", "que dans une question"},
        {"$$ $$\n", "vide"},
        {"```directives\n##BOL1\n## Partie\n", "3:1 « ## Partie » n’est pas une directive"},
        {"| a |\n|---|\n| b | perdu |\n", "3:7 « perdu » ne serait nulle part"},
        {"[note]: perdu\n", "1:2 « note » ne serait nulle part"},
        {"```python perdu\nx\n```\n", "1:11 « perdu »"},
        {"[a]: page:12\n", "dont aucun lien ne se sert"},
    };
    for (const auto& row : rows)
        EXPECT_THAT(faultsOf(row.markdown), HasSubstr(row.expected)) << row.markdown;
    const std::string wide(200, 'm');
    EXPECT_THAT(faultsOf("a " + wide + "\n"), HasSubstr("1:3 trop large pour la colonne"));
    EXPECT_THAT(faultsOf("| a |\n|---|\n| " + wide + " |\n"), HasSubstr("trop large pour la page"));
    std::string menu = "![M](menu:ME)\n\n";
    for (int i = 0; i < 11; ++i)
        menu += "- [a](page:1)\n";
    EXPECT_THAT(faultsOf(menu), HasSubstr("dix choix au plus"));
    EXPECT_THAT(faultsOf("![](f.svg \"" + wide + wide + wide + "\")\n"), HasSubstr("cinq cents"));
}

TEST(Faults, nameWhatOtherToolsReadAndWhatDidNotClose) {
    struct {
        const char* markdown;
        const char* expected;
    } rows[] = {
        {"un [lien](page: 12)\n", "1:9 « ]( » : ce lien"},
        {"![a](f.svg =60x50)\n", "1:4 « ]( »"},
        {"**gras **\n", "1:1 « ** »"},
        {"~~non~~\n", "un texte barré"},
        {"a $$x = 1\n", "1:3 « $$ » : cette formule ne se ferme pas"},
        {"mot[^1]\n\n[^1]: Une note.\n", "1:4 « [^ » : une page n’a pas de notes"},
        {"::: note\nmots\n:::\n", "un cadre s’écrit avec « > »"},
        {"{{< include a.md >}}\n", "rien ne s’inclut"},
        {"# Titre {#t}\n", "1:9 « {# »"},
        {"![a](f.svg){width=50%}\n", "« {width »"},
        {"#Titre\n", "1:1 « # » : un titre a un blanc"},
        {"mots\n##BOL1\n", "2:1 « ## »"},
        {"| a | b |\n| c | d |\n", "1:1 « | » : un tableau"},
        {"\\frac{a}{b}\n", "« \\frac » : une formule s’écrit entre"},
        {"\\(x\\)\n", "1:2 « \\( »"},
        {"a\n\n\\newpage\n\nb\n", "3:1 « \\newpage » : un saut de page ne se dit pas"},
        {"a\n\n<!-- Saut de page -->\n", "3:1 un saut de page"},
        {"a <!-- pagebreak --> b\n", "1:3 un saut de page"},
        {"a\n\f\nb\n", "2:1 un saut de page"},
        {"a\n\n```\nb\n\n\nc\n", "4:1 ce bloc ne finit pas"},
        {"> ```\n> b\n\nc\n", "2:3 ce bloc ne finit pas"},
        {"a\n\n#\n", "ce titre n’a pas de texte"},
        {"a\n\n>\n", "ce cadre est vide"},
        {"![](a.MP4)\n", "un film est un fichier AVI"},
        {"a\n\n[![](symbole:[ME) Sommaire](page:28) [![](symbole:SU) Suite](page:29)\n",
         "s’emmêlent"},
    };
    for (const auto& row : rows)
        EXPECT_THAT(faultsOf(row.markdown), HasSubstr(row.expected)) << row.markdown;
    for (const char* meant :
         {"\\**a\\**\n", "f\\](x)\n", "Complétez : ____ .\n", "3 * 4 = 12\n", "C:\\\\Users\n",
          "\\#Titre\n", "[a][b]\n\n[b]: page:12\n", "[B] et [b][]\n\n  [b]: <page:12>\n",
          "`**a` `\\frac`\n", "```\na\n\n\n```\n", "~~~\n```\n~~~\n", "```\n```\n"})
        EXPECT_EQ(faultsOf(meant), "") << meant;
}

TEST(Faults, boundWhatAHostileSourceCanAskFor) {
    EXPECT_THAT(faultsOf(std::string(2u << 20, 'a')), HasSubstr("mégaoctet"));
    EXPECT_THAT(faultsOf(std::string(100000, '>') + " a\n"), HasSubstr("les uns dans les autres"));
    const auto times = [](int count, const char* piece) {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += piece;
        return text;
    };
    EXPECT_THAT(faultsOf("$" + times(20000, "{") + times(20000, "}") + "$\n"),
                HasSubstr("trop longue"));
    EXPECT_THAT(faultsOf("$" + times(400, "{") + "x" + times(400, "}") + "$\n"),
                HasSubstr("trop d’accolades"));
    EXPECT_THAT(faultsOf("$" + times(999, "^") + "$\n"), HasSubstr("deux indices"));
    EXPECT_NE(faultsOf("$" + times(180, "\\frac") + "$\n"), "");
    EXPECT_THAT(faultsOf("[x" + times(100000, "]:") + "\n"), HasSubstr("nulle part"));
    const std::string many = faultsOf(times(5000, "[a](x)\n\n"));
    EXPECT_EQ(std::count(many.begin(), many.end(), '\n'), 100);
    EXPECT_EQ(faultsOf(""), "");
    EXPECT_EQ(faultsOf(std::string("a\0b\n", 4)), "");
}

TEST(Faults, comeInTheOrderOfTheSource) {
    EXPECT_THAT(faultsOf("[a](x:1)\n\n> **En marge** [b](x:2)\n\n[c](x:3)\n"),
                testing::ContainsRegex("1:2 (.|\n)*3:(.|\n)*5:2 "));
}

} // namespace
