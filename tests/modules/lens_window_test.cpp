#include "common/number_row.h"
#include "lens/main_window.h"
#include "modules/shipped_exercises.h"
#include "modules/window_case.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLineEdit>
#include <QTableView>

using namespace lens;

namespace {

class LensWindow : public WindowCase {
protected:
    void open(const Opening& opening) { WindowCase::open<MainWindow>(opening); }
    double value(const char* name) {
        return named<common::NumberField>(QString::fromUtf8(name))->value();
    }
    /// What a screen reader hears of the image.
    QString image() {
        return named<QWidget>("Valeurs de l’objet, de la lentille et de l’image")
            ->accessibleDescription();
    }
};

constexpr const char* kScreen = "Distance de l’écran";

} // namespace

TEST_F(LensWindow, findsAndNotesASharpImageWithTheKeyboardAlone) {
    open({});
    EXPECT_EQ(image(), "image à +60,0\u00A0cm, réelle, renversée, agrandie, grandissement −2,00");
    ASSERT_TRUE(named<QWidget>("Sur l’écran\u00A0: image floue"));
    EXPECT_FALSE(button("Noter la mesure")->isEnabled());
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(window_.get(), Qt::Key_PageUp);
    QTest::keyClick(window_.get(), Qt::Key_Right);
    QTest::keyClick(window_.get(), Qt::Key_Left);
    EXPECT_NEAR(value(kScreen), 60, 1e-9);
    auto* screen = named<QWidget>("Sur l’écran\u00A0: image nette");
    ASSERT_TRUE(screen);
    // The letter F, 4 of the screen's 6 cm high, with its head below and its arms at the left.
    const QImage picture = screen->grab().toImage();
    for (const QPoint& light : {QPoint(76, 30), QPoint(76, 90), QPoint(40, 90), QPoint(55, 58)})
        EXPECT_GT(picture.pixelColor(light).lightness(), 180) << light.x() << ' ' << light.y();
    for (const QPoint& dark : {QPoint(35, 58), QPoint(55, 30), QPoint(90, 58)})
        EXPECT_LT(picture.pixelColor(dark).lightness(), 60) << dark.x() << ' ' << dark.y();
    QTest::keyClick(window_.get(), Qt::Key_Space);
    auto* table = window_->findChild<QTableView*>();
    QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().section('\n', 1),
              "-30,0\t60,0\t-4,00\t-2,00\t-3,33\t1,67\t5,00");
    button("Effacer")->click();
    EXPECT_EQ(table->model()->rowCount(), 0);
}

TEST_F(LensWindow, pullsObjectAndScreenWithTheMouse) {
    open({});
    auto* plot = named<QWidget>("Banc d’optique, vu de côté");
    // The drawing begins at -50 cm, between margins of 52 and 16 pixels.
    double right = 75;
    const auto at = [&](double x) {
        return QPoint(qRound(52 + (x + 50) / (right + 50) * (plot->width() - 68)),
                      plot->height() / 2);
    };
    const auto pull = [&](double from, double to) {
        QTest::mousePress(plot, Qt::LeftButton, {}, at(from));
        QTest::mouseMove(plot, at(to));
        QTest::mouseRelease(plot, Qt::LeftButton, {}, at(to));
    };
    pull(-30, -40);
    EXPECT_NEAR(value("Distance de l’objet"), 40, 0.5);
    right = 50; // the image has come nearer
    pull(40, 45);
    EXPECT_NEAR(value(kScreen), 45, 0.5);
    pull(10, 20); // nothing stands there
    EXPECT_NEAR(value(kScreen), 45, 0.5);
}

TEST_F(LensWindow, anUnknownLensIsToldByTheScreenAloneUntilItIsFound) {
    Opening opening;
    opening.exercise = shipped(LENS_EXERCISES, "01.E24", parseExercise);
    open(opening);
    EXPECT_EQ(image(), "image à trouver");
    EXPECT_FALSE(named<QSlider>("Distance focale")->isVisible());
    EXPECT_FALSE(button("Mettre au point")->isEnabled());
    EXPECT_TRUE(says("Lentille inconnue"));
    auto* plot = named<QWidget>("Banc d’optique, vu de côté");
    const QImage before = plot->grab().toImage();
    for (auto* choice : window_->findChildren<QCheckBox*>())
        choice->toggle(); // as if somebody could
    EXPECT_EQ(plot->grab().toImage(), before);
    auto* field = named<QLineEdit>(common::qtText(opening.exercise->question));
    for (const auto& [typed, said] :
         {std::pair("20", "Ce n’est pas cela"), std::pair("12", "Juste")}) {
        field->setText(typed);
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_TRUE(says(QString::fromUtf8(said))) << typed;
    }
    EXPECT_TRUE(named<QSlider>("Distance focale")->isVisible());
    EXPECT_FALSE(named<QSlider>("Distance focale")->isEnabled());
    EXPECT_TRUE(image().startsWith("image à +20,0"));
}

TEST_F(LensWindow, isPaintedWhateverTheSetup) {
    open({});
    auto* plot = named<QWidget>("Banc d’optique, vu de côté");
    for (const char* kind : {"convergente", "divergente"}) {
        button(QString::fromUtf8(kind))->click();
        for (const Quantity& quantity : kQuantities) {
            for (const double end : {quantity.least, quantity.most}) {
                named<common::NumberField>(QString::fromUtf16(quantity.name))->setValue(end);
                EXPECT_FALSE(plot->grab().isNull());
            }
        }
    }
    named<common::NumberField>("Distance de l’objet")->setValue(20);
    named<common::NumberField>("Distance focale")->setValue(20);
    button("convergente")->click(); // the image is at infinity
    EXPECT_TRUE(image().startsWith("à l’infini"));
    window_->resize(1, 1);
    EXPECT_FALSE(window_->grab().isNull());
}
