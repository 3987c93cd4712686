#include "common/number_row.h"
#include "modules/shipped_exercises.h"
#include "modules/window_case.h"
#include "reaction/main_window.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QTableView>

using namespace reaction;
using test_support::eventually;

namespace {

class ReactionWindow : public WindowCase {
protected:
    void open(const Opening& opening) { WindowCase::open<MainWindow>(opening); }
    QString amounts() { return named<QWidget>("Quantités de matière")->accessibleDescription(); }
    /// What a screen reader hears below the equation.
    QString verdict(std::size_t reaction = 0) {
        return named<QWidget>(common::qtText(equation(kReactions.at(reaction))))
            ->accessibleDescription();
    }
    /// The table as it is copied for a spreadsheet.
    QStringList table() {
        auto* table = window_->findChild<QTableView*>();
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        return QApplication::clipboard()->text().split('\n');
    }
};

} // namespace

TEST_F(ReactionWindow, theSpaceBarLetsReactAndTheSliderShowsAnyMoment) {
    open({});
    auto* progress = named<QSlider>("Avancement");
    QTest::keyClick(window_.get(), Qt::Key_Space);
    EXPECT_TRUE(eventually([&] { return progress->value() > 20; }));
    QTest::keyClick(window_.get(), Qt::Key_Space);
    EXPECT_TRUE(button("Départ"));
    progress->setValue(progress->maximum());
    EXPECT_EQ(amounts(),
              QStringLiteral("méthane\u00A0: 0,50\u00A0mol, dioxygène\u00A0: 0,00\u00A0mol, "
                             "dioxyde de carbone\u00A0: 1,50\u00A0mol, eau\u00A0: 3,00\u00A0mol"));
    EXPECT_EQ(verdict(), QStringLiteral("Réactif limitant\u00A0: le dioxygène."));
    QTest::keyClick(window_.get(), Qt::Key_Home);
    EXPECT_EQ(progress->value(), 0);
    button("Mélange stœchiométrique")->click();
    EXPECT_EQ(named<common::NumberField>("Quantité initiale, dioxygène")->value(), 4);
    EXPECT_TRUE(verdict().startsWith("Mélange stœchiométrique"));
    named<common::NumberField>("Quantité initiale, méthane")->setValue(0);
    EXPECT_FALSE(button("Départ")->isEnabled());
}

TEST_F(ReactionWindow, theTableTellsEachStateOfEachReaction) {
    open({});
    EXPECT_EQ(table(),
              QStringList({"état\tx (mol)\tn(CH₄) (mol)\tn(O₂) (mol)\tn(CO₂) (mol)\tn(H₂O) (mol)",
                           "état initial\t0\t2,00\t3,00\t0,00\t0,00",
                           "en cours\tx\t2,00 - x\t3,00 - 2\u00A0x\tx\t2\u00A0x",
                           "à cet instant\t0,00\t2,00\t3,00\t0,00\t0,00",
                           "état final\t1,50\t0,50\t0,00\t1,50\t3,00"}));
    auto* reactions = named<QComboBox>("Réaction");
    for (int i = 0; i < reactions->count(); ++i) {
        reactions->setCurrentIndex(i);
        EXPECT_EQ(table()[0].count('\t'),
                  1 + static_cast<int>(kReactions.at(static_cast<std::size_t>(i)).count));
        EXPECT_FALSE(verdict(static_cast<std::size_t>(i)).isEmpty());
        EXPECT_FALSE(window_->grab().isNull());
    }
}

TEST_F(ReactionWindow, withholdsTheEndUntilARightAnswer) {
    Opening opening;
    opening.exercise = shipped(REACTION_EXERCISES, "03.E20", parseExercise);
    open(opening);
    EXPECT_FALSE(named<QComboBox>("Réaction")->isEnabled());
    EXPECT_FALSE(named<QSlider>("Quantité initiale, propane")->isEnabled());
    EXPECT_EQ(verdict(1), QStringLiteral("Réactif limitant\u00A0: à vous de le trouver."));
    EXPECT_EQ(table().last(), "état final\t?\t?\t?\t?\t?");
    auto* field = named<QLineEdit>(common::qtText(opening.exercise->question));
    for (const auto& [typed, said] :
         {std::pair("4,5", "Ce n’est pas cela"), std::pair("3.6 mol", "Juste")}) {
        field->setText(typed);
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_TRUE(says(QString::fromUtf8(said))) << typed;
    }
    EXPECT_EQ(table().last(), "état final\t1,20\t0,30\t0,00\t3,60\t4,80");
    EXPECT_EQ(verdict(1), QStringLiteral("Réactif limitant\u00A0: le dioxygène."));
    window_->resize(1, 1);
    EXPECT_FALSE(window_->grab().isNull());
}
