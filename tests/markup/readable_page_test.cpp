#include "markup/page_bench.h"
#include "page/readable_page.h"

#include <gtest/gtest.h>

namespace {

using page::BlockKind;
using page::ReadableBlock;
using page::ReadablePage;
using page::SurfaceId;
using test_support::PageBench;

struct FormulaRow {
    const char* name;
    const char16_t* source;
    const char16_t* linear;
    const char16_t* spoken;
};

void PrintTo(const FormulaRow& row, std::ostream* out) {
    *out << row.name;
}

class Formulas : public testing::TestWithParam<FormulaRow> {};

TEST_P(Formulas, areReadAsWhatTheyMean) {
    PageBench bench;
    bench.draw(QString::fromUtf16(GetParam().source));
    const ReadablePage page(bench.page.recording, SurfaceId::PictureTexte);
    EXPECT_EQ(page.text().trimmed().toStdString(),
              QString::fromUtf16(GetParam().linear).toStdString());
    ASSERT_EQ(page.blocks().size(), 1u);
    EXPECT_EQ(page.blocks().front().spoken().toStdString(),
              QString::fromUtf16(GetParam().spoken).toStdString());
}

INSTANTIATE_TEST_SUITE_P(
    Of, Formulas,
    testing::Values(
        FormulaRow{"fraction", u"v = \n##FRACd#t\n.¶\n", u"v = (d)/(t).", u"v = d sur t."},
        FormulaRow{"fractionInBrackets",
                   u"v = \n##NUMERATEUR\nd + 1\n##DENOMINATEUR\nt\n##FINFRAC\n.¶\n",
                   u"v = (d + 1)/(t).", u"v = d + 1, sur t."},
        FormulaRow{"fractionInAFraction",
                   u"##NUMERATEUR\na\n##DENOMINATEUR\n##FRACb#c\n##FINFRAC\n¶\n", u"(a)/((b)/(c))",
                   u"a sur b sur c,"},
        FormulaRow{"indexAndExponent", u"v\n##IND0\n = 10\n##EXP−3\n m·s\n##EXP−1\n¶\n",
                   u"v_0 = 10^-3 m·s^-1", u"v indice 0 = 10 puissance −3 m·s puissance −1"},
        FormulaRow{"exponentOfSeveralWords", u"e\n##EXPa + b\n¶\n", u"e^(a + b)",
                   u"e puissance a + b"},
        FormulaRow{"root", u"t = \n##SQD\n2h/g\n##SQF1\n¶\n", u"t = √(2h/g)",
                   u"t = racine de 2h/g"},
        FormulaRow{"rootOfAFraction", u"t = \n##SQD\n##FRAC2h#g\n##SQF2\n¶\n", u"t = √((2h)/(g))",
                   u"t = racine de 2h sur g"},
        FormulaRow{"atomsAndCharges", u"SO\n##IND4\n##EXP2−\n et Na\n##EXP+\n¶\n",
                   u"SO4^2- et Na^+", u"SO 4 2 moins et Na plus"},
        FormulaRow{"raisedLetters", u"le 1\n##EXPer\n août¶\n", u"le 1er août", u"le 1er août"},
        FormulaRow{"vector", u"le poids \n##VE1P\n agit¶\n", u"le poids P\u20D7 agit",
                   u"le poids vecteur P agit"},
        FormulaRow{"reaction", u"A\n##K104\nB\n##K004\nC¶\n", u"A → B ⇌ C",
                   u"A donne B en équilibre avec C"},
        FormulaRow{"tallBrackets",
                   u"a \n##K001\n##FRACb#c\n##K101\n + \n##K003\nd\n##K103\n = \n"
                   u"##K002\ne\n##K102\n¶\n",
                   u"a [(b)/(c)] + (d) = {e}",
                   u"a ouvrez le crochet b sur c fermez le crochet + ouvrez la parenthèse d "
                   u"fermez la parenthèse = ouvrez l’accolade e fermez l’accolade"}),
    [](const auto& row) { return std::string(row.param.name); });

/// The shape of a block: its kind, what is in it.
QString shape(const ReadableBlock& block) {
    static const char* const kNames[] = {"titre",   "texte",  "liste", "puce",
                                         "tableau", "rangée", "case",  "image"};
    QString all = QString::fromUtf8(kNames[static_cast<int>(block.kind)]);
    if (block.children.empty())
        return all + u' ' + block.spoken();
    for (const ReadableBlock& child : block.children)
        all += QStringLiteral(" (") + shape(child) + u')';
    return all;
}

QStringList shapes(const ReadablePage& page) {
    QStringList all;
    for (const ReadableBlock& block : page.blocks())
        all += shape(block);
    return all;
}

constexpr const char16_t* kArticle =
    u"##SI16\n##BOL1\nLa chute¶\n##SI10\n##BOL0\n"
    u"Une ligne pleine, qui va jusqu’au bord de la colonne du te¶\n"
    u"xte.¶\n"
    u"– une bille ;¶\n– une plume.¶\n"
    u"##TAB000090 1\nhauteur\n##TAB090160 2\ndurée¶\n##FINTAB\n"
    u"##TAB000090 1\n1 m\n##TAB090160 2\n0,45 s¶\n##FINTAB\n";

TEST(ReadablePage, hasTheStructureThatLooksTell) {
    PageBench bench;
    bench.draw(QString::fromUtf16(kArticle));
    const ReadablePage page(bench.page.recording, SurfaceId::PictureTexte);
    EXPECT_EQ(test_support::lines(shapes(page)),
              test_support::lines(
                  {"titre La chute",
                   "texte Une ligne pleine, qui va jusqu’au bord de la colonne du te xte.",
                   "liste (puce – une bille ;) (puce – une plume.)",
                   "tableau (rangée (case (texte hauteur)) (case (texte durée))) "
                   "(rangée (case (texte 1 m)) (case (texte 0,45 s)))"}));
    EXPECT_TRUE(page.text().endsWith(u"hauteur\tdurée\n1 m\t0,45 s\n"))
        << page.text().toStdString();
}

TEST(ReadablePage, piecesCoverTheTextInItsOrder) {
    PageBench bench;
    bench.draw(QString::fromUtf16(kArticle));
    const ReadablePage page(bench.page.recording, SurfaceId::PictureTexte);
    qsizetype end = 0;
    ASSERT_GT(page.pieces().size(), 8u);
    for (const page::ReadablePiece* piece : page.pieces()) {
        EXPECT_GE(piece->from, end);
        end = piece->from + piece->count;
        EXPECT_EQ(page.text().mid(piece->from, piece->count), piece->linear);
    }
}

TEST(ReadablePage, leavesOutWhatIsNotRead) {
    PageBench bench;
    bench.draw(QStringLiteral("##RELIEF308\nOmbre¶\n##RELIEF0\n"
                              "##LIERTun lien#PAG002\n et la suite¶\n"));
    const ReadablePage page(bench.page.recording, SurfaceId::PictureTexte);
    EXPECT_EQ(page.text().count(QStringLiteral("Ombre")), 1) << page.text().toStdString();
    bool hasLink = false;
    for (const page::ReadablePiece* piece : page.pieces())
        hasLink = hasLink || (piece->source->tag == u"PAG002" && piece->linear == u"un lien");
    EXPECT_TRUE(hasLink) << page.text().toStdString();
}

/// A bar that is none: the border of a frame between two lines.
TEST(ReadablePage, takesNoBorderForAFraction) {
    PageBench bench;
    bench.draw(QStringLiteral("un¶\n##LARGEUR300\n##RECT040\ndeux¶\n"));
    const ReadablePage page(bench.page.recording, SurfaceId::PictureTexte);
    EXPECT_EQ(page.text(), QStringLiteral("un\ndeux\n"));
}

/// What a hostile page can pile up is read in no more than its length.
TEST(ReadablePage, isBoundedByWhatStandsThere) {
    page::Recording recording;
    for (int i = 0; i < 3000; ++i) {
        recording.add(page::TextOperation{SurfaceId::PictureTexte, 0, 0, "x", {}, 0, 100});
        recording.add(page::LineOperation{SurfaceId::PictureTexte, 0, 100, 10, 150, 0, 1});
        recording.add(page::LineOperation{SurfaceId::PictureTexte, 10, 150, 20, 0, 0, 1});
        recording.add(page::LineOperation{SurfaceId::PictureTexte, 20, 0, 300, 0, 0, 1});
    }
    const ReadablePage page(recording, SurfaceId::PictureTexte);
    EXPECT_LT(page.text().size(), 200'000);
}

} // namespace
