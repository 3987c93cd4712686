#include "common/number_row.h"
#include "common/qt_text.h"
#include "common/simulation.h"
#include "modules/window_case.h"
#include "projectile/about.h"
#include "projectile/main_window.h"
#include "shell/raw_status_file.h"
#include "shell/status_file.h"

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QSlider>
#include <QTableView>
#include <QTemporaryDir>

#include <algorithm>

using namespace projectile;
using test_support::eventually;

namespace {

class SimulatorTest : public WindowCase {
protected:
    void open(const Opening& opening) { WindowCase::open<MainWindow>(opening); }
};

/// A course with two exercises, and the record by which it asks for one.
class CourseOfTwo {
public:
    CourseOfTwo() {
        for (const char* const name : {"Exercice 03.E21", "Exercice 05.E21"})
            EXPECT_TRUE(
                QFile::copy(QStringLiteral(PROJECTILE_EXERCISES "/") + QString::fromLatin1(name),
                            directory_.filePath(QString::fromLatin1(name))));
        raw_status_file::writeAllNon(directory_.path());
    }

    void ask(const char* exercise) const {
        shell::StatusFile(directory_.filePath(raw_status_file::kName))
            .write(shell::StatusFile::kArgumentRecord, QString::fromLatin1(exercise));
    }
    common::Simulation run() const {
        return {simulationKind(), common::StatusRecord(directory_.path(), kAbout.module),
                directory_.path()};
    }

private:
    QTemporaryDir directory_;
};

} // namespace

TEST_F(SimulatorTest, theSpaceBarRunsAndStopsAndArrowsMoveSliders) {
    open({});
    auto* angle = named<QSlider>("Angle de lancement");
    const int before = angle->value();
    QTest::keyClick(angle, Qt::Key_Right);
    EXPECT_EQ(angle->value(), before + 1);
    EXPECT_EQ(named<common::NumberField>("Angle de lancement")->value(), 46);
    QTest::keyClick(angle, Qt::Key_Space);
    EXPECT_TRUE(button("Pause"));
    auto* time = named<QSlider>("Temps");
    EXPECT_TRUE(eventually([&] { return time->value() > 20; }));
    QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "), true);
    QCoreApplication::sendEvent(window_.get(), &heldDown);
    EXPECT_TRUE(button("Pause"));
    QTest::keyClick(angle, Qt::Key_Space);
    EXPECT_TRUE(button("Départ"));
    QTest::keyClick(window_.get(), Qt::Key_Home);
    EXPECT_EQ(time->value(), 0);
}

TEST_F(SimulatorTest, tabStopsAtThePressedButtonOfARow) {
    open({});
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    QTest::mouseClick(button("Lune"), Qt::LeftButton);
    EXPECT_EQ(button("Lune")->focusPolicy(), Qt::TabFocus);
    EXPECT_EQ(button("Terre")->focusPolicy(), Qt::NoFocus);
    button("Lune")->setFocus(Qt::TabFocusReason);
    QTest::keyClick(button("Lune"), Qt::Key_Left);
    EXPECT_TRUE(button("Terre")->isChecked() && button("Terre")->hasFocus());
}

TEST_F(SimulatorTest, slidersHaveTheirValuesInTheirUnits) {
    open({});
    const auto slider = [&](const char* name) {
        return QAccessible::queryAccessibleInterface(named<QSlider>(QString::fromUtf8(name)));
    };
    QAccessibleInterface* const speed = slider("Vitesse initiale");
    ASSERT_TRUE(speed && speed->valueInterface());
    speed->valueInterface()->setCurrentValue(12.5);
    EXPECT_EQ(speed->text(QAccessible::Value), u"12,50\u00A0m/s");
    EXPECT_EQ(speed->valueInterface()->currentValue(), 12.5);
    EXPECT_EQ(speed->valueInterface()->maximumValue(), 60);
    EXPECT_EQ(speed->valueInterface()->minimumStepSize(), 0.5);
    EXPECT_EQ(slider("Angle de lancement")->text(QAccessible::Value), u"45,0°");
    EXPECT_EQ(slider("Temps")->text(QAccessible::Value), u"0,00\u00A0s");
}

TEST_F(SimulatorTest, theDecimalPointOfTheKeyboardIsAComma) {
    open({});
    auto* speed = named<common::NumberField>("Vitesse initiale");
    speed->setFocus();
    speed->selectAll();
    QTest::keyClicks(speed, "12.5");
    QTest::keyClick(speed, Qt::Key_Return);
    EXPECT_EQ(speed->value(), 12.5);
    EXPECT_EQ(named<QSlider>("Vitesse initiale")->value(), 25);
}

TEST_F(SimulatorTest, theTableIsCopiedForASpreadsheet) {
    open({});
    auto* table = window_->findChild<QTableView*>();
    QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
    const QStringList lines = QGuiApplication::clipboard()->text().split('\n');
    EXPECT_EQ(lines.size(), table->model()->rowCount() + 1);
    EXPECT_EQ(lines.last().section('\t', 0, 4), "2,88\t40,77\t0,00\t14,14\t-14,14");
}

TEST_F(SimulatorTest, anExerciseIsAnsweredAndExplained) {
    Opening opening;
    QString why;
    opening.exercise =
        common::readExercise(PROJECTILE_EXERCISES "/Exercice 03.E21", why, parseExercise);
    ASSERT_TRUE(opening.exercise) << qPrintable(why);
    open(opening);
    EXPECT_FALSE(named<QSlider>("Angle de lancement")->isEnabled());
    EXPECT_TRUE(named<QSlider>("Vitesse initiale")->isEnabled());
    auto* field = named<QLineEdit>(common::qtText(opening.exercise->question));
    for (const auto& [typed, said] :
         {std::pair("abc", "Tapez un nombre"), std::pair("3", "Ce n’est pas cela"),
          std::pair("2.02", "Juste")}) {
        field->setText(typed);
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_TRUE(says(QString::fromUtf8(said))) << typed;
    }
    // The smallest window cuts none of its texts.
    window_->resize(1, 1);
    EXPECT_TRUE(eventually([&] {
        const auto labels = window_->findChildren<QLabel*>();
        return std::ranges::all_of(labels, [](const QLabel* label) {
            return !label->isVisible() || !label->wordWrap() ||
                   label->height() >= label->heightForWidth(label->width());
        });
    }));
}

TEST_F(SimulatorTest, saysWhyAnExerciseIsNotOpened) {
    Opening opening;
    opening.notice = "illisible";
    open(opening);
    EXPECT_TRUE(says("illisible"));
    EXPECT_TRUE(named<QSlider>("Angle de lancement")->isEnabled());
    window_->resize(1, 1); // each number keeps its place, the formulas scroll
    EXPECT_TRUE(eventually([&] {
        return named<QWidget>("Valeurs à l’instant affiché et pour le vol entier")->height() > 100;
    }));
    EXPECT_GE(named<QSlider>("Temps")->width(), 60);
    EXPECT_GT(named<QWidget>("Formules")->minimumWidth(), 300);
}

TEST_F(SimulatorTest, takesTheExerciseThatTheCourseAsksForWhileItRuns) {
    const CourseOfTwo course;
    const auto titles = [](const QWidget& window) {
        QStringList all;
        for (const QLabel* label : window.findChildren<QLabel*>())
            all += label->text();
        return all;
    };
    course.ask("Exercice 03.E21");
    common::Simulation simulation = course.run();
    const QWidget* const first = &simulation.window();
    const QStringList shown = titles(*first);
    for (const char* const other : {"Exercice 03.E21", "", "Exercice 05.E20"}) {
        course.ask(other);
        simulation.lookForExercise();
        EXPECT_EQ(&simulation.window(), first) << other;
    }
    course.ask("Exercice 05.E21");
    simulation.lookForExercise();
    EXPECT_TRUE(simulation.window().isVisible());
    EXPECT_NE(titles(simulation.window()), shown);
}

TEST_F(SimulatorTest, offersTheNextExerciseAfterARightAnswer) {
    const CourseOfTwo course;
    course.ask("Exercice 03.E21");
    common::Simulation simulation = course.run();
    const auto next = [&] {
        for (auto* found : simulation.window().findChildren<QPushButton*>())
            if (found->text() == QStringLiteral("Exercice suivant"))
                return found;
        return static_cast<QPushButton*>(nullptr);
    };
    const auto answer = [&](const char* exercise, const QString& typed) {
        QString why;
        const auto read = common::readExercise(QStringLiteral(PROJECTILE_EXERCISES "/") +
                                                   QString::fromLatin1(exercise),
                                               why, parseExercise);
        for (auto* field : simulation.window().findChildren<QLineEdit*>())
            if (field->accessibleName() == common::qtText(read->question)) {
                field->setText(typed);
                QTest::keyClick(field, Qt::Key_Return);
            }
    };
    ASSERT_TRUE(next());
    answer("Exercice 03.E21", QStringLiteral("3"));
    EXPECT_FALSE(next()->isVisible());
    answer("Exercice 03.E21", QStringLiteral("2.02"));
    ASSERT_TRUE(next()->isVisible());
    const QWidget* const first = &simulation.window();
    next()->click();
    ASSERT_TRUE(eventually([&] { return &simulation.window() != first; }));
    EXPECT_FALSE(next()->isVisible());
    simulation.lookForExercise(); // coming to the front again changes nothing
    QString why;
    const auto last =
        common::readExercise(PROJECTILE_EXERCISES "/Exercice 05.E21", why, parseExercise);
    QStringList labels;
    for (const QLabel* label : simulation.window().findChildren<QLabel*>())
        labels += label->text();
    EXPECT_TRUE(labels.contains(common::qtText(last->title))) << qPrintable(labels.join('|'));
}
