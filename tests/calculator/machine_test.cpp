#include "calculator/key_layout.h"
#include "calculator/machine.h"
#include "calculator/machine_opener.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

namespace calculator {
namespace {

class Window : public testing::Test {
protected:
    Window() { open(); }
    ~Window() override { QLocale::setDefault(QLocale::c()); }

    void open() {
        opener.open();
        ASSERT_TRUE(QTest::qWaitForWindowActive(opener.window()));
    }
    template <class T>
    T* control(const char* name) {
        auto* const found = opener.window()->findChild<T*>(QString::fromUtf8(name));
        EXPECT_TRUE(found) << name;
        return found;
    }
    void click(const char* names) {
        for (const QString& name : QString::fromUtf8(names).split(u' '))
            QTest::mouseClick(control<QAbstractButton>(name.toUtf8().constData()), Qt::LeftButton);
    }
    void type(const char* keys) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(keys));
    }
    void hit(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
    std::string shown() { return control<QLineEdit>("z1")->text().toStdString(); }

    Memory memory;
    MachineOpener opener{memory};
};

TEST_F(Window, calculatesByMouse) {
    click("B2 multip B3 EXE");
    EXPECT_EQ(shown(), " 6");
    click("plus B1 EXE");
    EXPECT_EQ(shown(), " 7");
    click("RAZ B9 racine B1 B6 EFFACE");
    EXPECT_EQ(shown(), "9 * SQR 1");
    click("EXE C0");
    EXPECT_EQ(shown(), "9.E+00");
}

TEST_F(Window, calculatesByKeyboard) {
    type("(2+3)*4e-1x,");
    EXPECT_EQ(shown(), "(2 + 3) * 4E-1");
    hit(Qt::Key_Backspace);
    hit(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(shown(), " 20");
    type("^2");
    hit(Qt::Key_Return);
    EXPECT_EQ(shown(), " 400");
    hit(Qt::Key_H, Qt::ControlModifier); // not an erasing key, whatever it types elsewhere
    type("3");
    QKeyEvent waiting(QEvent::KeyPress, Qt::Key_Dead_Circumflex, {});
    QApplication::sendEvent(QApplication::focusWidget(), &waiting);
    EXPECT_EQ(shown(), "3 ^ ");
    hit(Qt::Key_Escape);
    EXPECT_EQ(shown(), "3 ^ ");
}

TEST_F(Window, copiesTheResultAndPastesByItsKeys) {
    type("2*3.5");
    hit(Qt::Key_Return);
    hit(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"7");
    const struct {
        const char* pasted;
        const char* shown;
    } rows[] = {
        {"2cos(3.5e-3)", "2 * cos (3.5E-3)"},
        {" \n3 × −2 ÷ 4²\n+1", "3 * -2 / 4 ^ 2"},
        {"INVSIN 0.5+EXP 1", "invSIN 0.5 + exp 1"},
        {"√ 16 = zz", "SQR 16"},
        {"\b\r<b>", ""},
        {"2+1,5", "2 + 1"},
    };
    for (const auto& row : rows) {
        click("RAZ");
        QGuiApplication::clipboard()->setText(QString::fromUtf8(row.pasted));
        hit(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(shown(), row.shown) << row.pasted;
    }
    EXPECT_EQ(control<QLineEdit>("z1")->accessibleDescription(), u"Le signe décimal est le point");
}

TEST_F(Window, saysWhyACommaDoesNothing) {
    auto& z1 = *control<QLineEdit>("z1");
    type("1");
    const QImage quiet = z1.grab().toImage();
    type(",");
    EXPECT_EQ(shown(), "1");
    EXPECT_EQ(z1.accessibleDescription(), u"Le signe décimal est le point");
    EXPECT_NE(z1.grab().toImage(), quiet);
    hit(Qt::Key_Backspace);
    type("1");
    EXPECT_EQ(z1.accessibleDescription(), u"");
    EXPECT_EQ(z1.grab().toImage(), quiet);
}

TEST_F(Window, enterHeldDownCalculatesOnce) {
    type("2+3");
    hit(Qt::Key_Return);
    QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"), true);
    QApplication::sendEvent(QApplication::focusWidget(), &heldDown);
    EXPECT_EQ(shown(), " 5"); // and not the 0 of the emptied entry
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_7, {}, QStringLiteral("7"), true);
    QApplication::sendEvent(QApplication::focusWidget(), &repeated);
    EXPECT_EQ(shown(), "7"); // any other key may be held
}

TEST_F(Window, altGrTypesAndCtrlAndAltDoNot) {
    const auto strike = [](Qt::KeyboardModifiers modifiers, const char* text) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_AsciiCircum, modifiers, QString::fromUtf8(text));
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    };
    type("2");
    strike(Qt::ControlModifier, "^");
    strike(Qt::AltModifier, "^");
    strike(Qt::MetaModifier, "^");
    strike(Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier, "^");
    EXPECT_EQ(shown(), "2");
    strike(Qt::ControlModifier | Qt::AltModifier, "^"); // AltGr of Windows
    strike(Qt::GroupSwitchModifier, "3");
    EXPECT_EQ(shown(), "2 ^ 3");
}

TEST_F(Window, tabStopsAtTheChosenOptionOfEachFrame) {
    const auto stops = [this] {
        QStringList names;
        control<QLineEdit>("z1")->setFocus();
        for (int stop = 0; stop < 60; ++stop) {
            hit(Qt::Key_Tab);
            const QString name = QApplication::focusWidget()->objectName();
            if (QApplication::focusWidget()->inherits("QRadioButton") && !names.contains(name))
                names += name;
        }
        return names;
    };
    EXPECT_EQ(stops(), (QStringList{"angle1", "C1"}));
    click("angle0");
    EXPECT_EQ(stops(), (QStringList{"angle0", "C1"}));
}

TEST_F(Window, altReleasedOverTheDisplayEndsTheUnderlines) {
    const auto painted = [this] { return control<QWidget>("bsin")->grab().toImage(); };
    const QImage plain = painted();
    QTest::keyPress(control<QLineEdit>("z1"), Qt::Key_Alt, Qt::AltModifier);
    EXPECT_NE(painted(), plain);
    QTest::keyRelease(control<QLineEdit>("z1"), Qt::Key_Alt);
    EXPECT_EQ(painted(), plain);
}

TEST_F(Window, comesBackWhenItWasMinimised) {
    type("12");
    opener.window()->showMinimized();
    open();
    EXPECT_FALSE(opener.window()->isMinimized());
    EXPECT_EQ(shown(), "12");
    EXPECT_FALSE(opener.window()->windowIcon().isNull());
}

TEST_F(Window, openedAfreshItIsAnotherWindow) {
    click("B8 Command1 C0 angle0 B5");
    const QPointer<QWidget> before = opener.window();
    QSize size;
    opener.openAfresh([&size](QSize asked) {
        size = asked;
        return QPoint(60, 50);
    });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(before);
    ASSERT_TRUE(opener.window() && QTest::qWaitForWindowActive(opener.window()));
    EXPECT_EQ(size, opener.window()->size());
    EXPECT_EQ(opener.window()->pos(), QPoint(60, 50));
    EXPECT_EQ(shown(), "");
    EXPECT_TRUE(control<QAbstractButton>("C1")->isChecked());
    EXPECT_TRUE(control<QAbstractButton>("angle1")->isChecked());
    click("ANS Command3"); // no answer, but the memory
    EXPECT_EQ(shown(), "8");
}

TEST_F(Window, theDisplayKeepsTheFocusAndIsNotEdited) {
    // The plus key writes nothing on the blank display that RAZ leaves.
    for (const char* key :
         {"B1", "Command1", "Command2", "command4", "EXE", "ANS", "EFFACE", "RAZ", "plus", "C0"}) {
        control<QAbstractButton>("Bln")->setFocus();
        click(key);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), QStringLiteral("z1")) << key;
    }
    click("B1");
    hit(Qt::Key_Left);
    hit(Qt::Key_Home);
    hit(Qt::Key_Delete);
    type("2");
    EXPECT_EQ(shown(), "12");
    EXPECT_EQ(control<QLineEdit>("z1")->cursorPosition(), 2);
}

TEST_F(Window, mnemonicsPressTheFunctions) {
    hit(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(shown(), "sin ");
    hit(Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(shown(), "sin invTAN ");
}

TEST_F(Window, anglesAndFormatStandAsDesigned) {
    EXPECT_TRUE(control<QAbstractButton>("angle1")->isChecked());
    EXPECT_TRUE(control<QAbstractButton>("C1")->isChecked());
    click("bsin B3 B0 EXE");
    EXPECT_EQ(shown(), "-.988031624092862");
    click("angle0 RAZ bsin B3 B0 EXE");
    EXPECT_EQ(shown(), " .5");
}

TEST_F(Window, onlyTheMemoryOutlivesItEvenInFrench) {
    click("B8 Command1 C0 plus B1 EXE");
    opener.window()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(opener.window(), nullptr);
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    open();
    EXPECT_EQ(shown(), "");
    EXPECT_TRUE(control<QAbstractButton>("C1")->isChecked());
    click("ANS");
    EXPECT_EQ(shown(), "");
    click("Command3");
    EXPECT_EQ(shown(), "8");
    click("Bpoint B5 EXE");
    EXPECT_EQ(shown(), " 8.5");
    click("Command1 C0 Command3");
    EXPECT_EQ(shown(), "1,65E+01"); // the one place where the language shows
}

TEST_F(Window, worksBesideAModalWindowOpenedBeforeOrAgain) {
    QWidget shell;
    QDialog test(&shell);
    test.setWindowModality(Qt::WindowModal);
    shell.show();
    test.show();
    // As the window system sends it: a window that is blocked does not get it.
    const auto clickOn = [this](const char* key) {
        QTest::mouseClick(opener.window()->windowHandle(), Qt::LeftButton, {},
                          control<QAbstractButton>(key)->geometry().center());
    };
    clickOn("B5");
    opener.open(QPoint(40, 30));
    EXPECT_EQ(opener.window()->pos(), QPoint(40, 30));
    clickOn("B6");
    EXPECT_EQ(shown(), "56");
}

TEST_F(Window, escapeEndsALongEvaluation) {
    type("1+2+3+4+5+6");
    opener.window()->setBreathingInterval(0);
    std::string meanwhile;
    QTimer::singleShot(0, opener.window(), [&] {
        meanwhile = shown();
        type("9");
        click("RAZ");
        hit(Qt::Key_Escape);
    });
    hit(Qt::Key_Return);
    EXPECT_EQ(meanwhile, "    Patience... Calculs en cours.     ");
    EXPECT_EQ(shown(), "Calcul impossible");
    type("7");
    EXPECT_EQ(shown(), "1 + 2 + 3 + 4 + 5 + 67");
}

TEST_F(Window, closedInTheMiddleItClosesAtTheEnd) {
    type("1+2+3+4+5+6");
    opener.window()->setBreathingInterval(0);
    QTimer::singleShot(0, opener.window(), [&] {
        opener.window()->close();
        EXPECT_TRUE(opener.window()->isVisible());
    });
    hit(Qt::Key_Return);
    EXPECT_FALSE(opener.window() && opener.window()->isVisible());
}

TEST_F(Window, everyKeyHasItsPlace) {
    const auto buttons = opener.window()->findChildren<QAbstractButton*>();
    QRegion taken;
    int keys = 0;
    for (const auto* button : buttons) {
        if (button->parentWidget() != opener.window())
            continue;
        ++keys;
        EXPECT_FALSE(taken.intersects(button->geometry())) << button->objectName().toStdString();
        EXPECT_TRUE(opener.window()->rect().contains(button->geometry()));
        EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
        const double text =
            QFontMetricsF(button->font()).horizontalAdvance(button->text().remove(u'&'));
        EXPECT_LE(text, button->width() - 2) << button->objectName().toStdString();
        taken += button->geometry();
    }
    EXPECT_EQ(keys, static_cast<int>(keypad().size()));
    EXPECT_EQ(keyLayout().size(), keypad().size());
}

TEST_F(Window, theLongestMessageFitsTheDisplay) {
    type("2**3");
    hit(Qt::Key_Return);
    EXPECT_EQ(shown(), "Erreur saisie: incompréhension sur opérateurs: ^ * / + -");
    const QFontMetricsF metrics(control<QLineEdit>("z1")->font());
    EXPECT_LE(metrics.horizontalAdvance(control<QLineEdit>("z1")->text()), 268);
}

TEST_F(Window, theGroundIsPaintedColumnByColumn) {
    const QImage picture = opener.window()->grab().toImage();
    EXPECT_EQ(picture.pixel(0, 60), qRgb(200, 250, 250));
    EXPECT_EQ(picture.pixel(3, 60), qRgb(198, 248, 248)); // 198.5: halves to the even neighbour
    EXPECT_EQ(picture.pixel(295, 60), qRgb(52, 102, 102));
    EXPECT_EQ(picture.pixel(81, 300), qRgb(0, 255, 255));
    EXPECT_EQ(picture.pixel(206, 300), qRgb(255, 255, 255));
    EXPECT_EQ(picture.pixel(1, 200), qRgb(0, 0, 0));
    EXPECT_EQ(picture.pixel(299, 200), qRgb(255, 255, 255));
}

} // namespace
} // namespace calculator
