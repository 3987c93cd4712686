#include "markup/page_bench.h"
#include "page/spoken_page.h"
#include "page/voice_words.h"

#include <gtest/gtest.h>

namespace {

using page::ReadablePage;
using page::ReadingStart;

constexpr const char16_t* kLesson = u"##SI16\n##BOL1\nLa chute¶\n##SI10\n##BOL0\n"
                                    u"La vitesse vaut \n##FRACd#t\n ici.¶\n##DECLIG1\n"
                                    u"– une bille ;¶\n– une plume.¶\n##DECLIG1\n"
                                    u"##TAB000090 1\nhauteur\n##TAB090160 2\ndurée¶\n##FINTAB\n"
                                    u"##TAB000090 1\n\n##TAB090160 2\n0,45 s¶\n##FINTAB\n";

const QStringList kAll{
    "La chute",     "La vitesse vaut d sur t ici.",   "Liste de 2 éléments", "– une bille ;",
    "– une plume.", "Tableau : 2 lignes, 2 colonnes", "hauteur ; durée",     "0,45 s"};

TEST(VoiceWords, areInPlaceOfSignsThatVoicesLeaveOut) {
    const struct {
        const char16_t *spoken, *words;
    } rows[] = {
        {u"v = d sur t", u"v égale d sur t"},
        {u"10 puissance −3 m·s puissance −1", u"10 puissance moins 3 m s puissance moins 1"},
        {u"il fait -3 °C, peut-être –5", u"il fait moins 3 °C, peut-être moins 5"},
        {u"de 2019-2020", u"de 2019-2020"},
        {u"5\u00A0km/h ou 3 m/s", u"5 km par h ou 3 m par s"},
        {u"ρ = m/V, a<b", u"ρ égale m sur V, a inférieur à b"},
        {u"oui et/ou non, le 12/03/2020", u"oui et/ou non, le 12/03/2020"},
        {u"• une puce", u"une puce"},
        {u"– un tiret", u"– un tiret"},
        {u"2 + 2 × 3 ÷ 4", u"2 + 2 × 3 ÷ 4"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(page::voiceWords(QString::fromUtf16(row.spoken)).toStdString(),
                  QString::fromUtf16(row.words).toStdString());
}

class SpokenPage : public testing::Test {
protected:
    SpokenPage() {
        bench.draw(QString::fromUtf16(kLesson));
        shown.emplace(bench.page.recording, page::SurfaceId::PictureTexte);
    }

    std::string from(const ReadingStart& start) const {
        QStringList words;
        for (const page::SpokenPart& part : spokenParts(*shown, start)) {
            EXPECT_FALSE(part.area.isEmpty()) << part.words.toStdString();
            words.append(part.words);
        }
        return words.join(u'\n').toStdString();
    }
    qsizetype positionOf(const char16_t* words) const {
        return shown->text().indexOf(QStringView(words));
    }
    double topOf(const char16_t* words) const {
        for (const page::ReadablePiece* piece : shown->pieces())
            if (piece->linear.contains(QStringView(words)))
                return piece->area.top();
        ADD_FAILURE();
        return 0;
    }
    static std::string last(int count) { return kAll.last(count).join(u'\n').toStdString(); }

    test_support::PageBench bench;
    std::optional<ReadablePage> shown;
};

TEST_F(SpokenPage, hasTheWordsOfScreenReadersInTheirOrder) {
    EXPECT_EQ(from({}), last(8));
}

TEST_F(SpokenPage, beginsWithTheWordOrFormulaAPositionIsIn) {
    EXPECT_EQ(from({.position = positionOf(u"tesse")}), "vitesse vaut d sur t ici.\n" + last(6));
    EXPECT_EQ(from({.position = positionOf(u"(t)")}), "d sur t ici.\n" + last(6));
    EXPECT_EQ(from({.position = positionOf(u"plume")}), "plume.\n" + last(3)); // no count of a part
    EXPECT_EQ(from({.position = positionOf(u"durée")}), last(2));
    EXPECT_EQ(from({.position = shown->text().size()}), "");
}

TEST_F(SpokenPage, beginsWithTheFirstLineThatShows) {
    EXPECT_EQ(from({.top = topOf(u"La chute") + 15}), last(8));
    EXPECT_EQ(from({.top = topOf(u"vitesse")}), last(7));
    EXPECT_EQ(from({.top = topOf(u"bille")}), last(6));
    EXPECT_EQ(from({.top = topOf(u"plume")}), last(4));
    EXPECT_EQ(from({.top = topOf(u"0,45")}), last(1));
}

} // namespace
