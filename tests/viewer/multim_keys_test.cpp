// The main window by the keyboard, the wheel and the scroll bar.

#include "look/scroll_bar.h"
#include "viewer/multim.h"
#include "viewer/window_bench.h"
#include "viewer/window_case.h"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>

#include <gmock/gmock.h>
namespace {

using platform::Answer;
using test_support::lines;
using test_support::page;
using test_support::Window;
using testing::ElementsAre;

TEST_F(Window, mnemonicsPressTheirButtons) {
    show(2);
    show(3);
    struct Row {
        int key;
        QString page;
    };
    for (const Row& row :
         {Row{Qt::Key_P, QStringLiteral("2")}, Row{Qt::Key_U, QStringLiteral("3")},
          Row{Qt::Key_Y, QStringLiteral("28")}, Row{Qt::Key_H, QStringLiteral("30")},
          Row{Qt::Key_S, QStringLiteral("1")}}) {
        press(row.key, Qt::AltModifier);
        EXPECT_EQ(shown(), row.page) << char(row.key);
    }
    bench.collaborators.log.clear();
    press(Qt::Key_C, Qt::AltModifier);
    press(Qt::Key_A, Qt::AltModifier);
    press(Qt::Key_E, Qt::AltModifier);
    EXPECT_THAT(bench.collaborators.log.mid(0, 3),
                ElementsAre(QStringLiteral("calculator"), QStringLiteral("help"),
                            QStringLiteral("launch 70")));
}

TEST_F(Window, searchAndCreditsShareAMnemonicAndBothWork) {
    // The page has the keyboard from the start, and no button.
    EXPECT_EQ(QApplication::focusWidget(), bench.control<QWidget>("PictureTEXTE"));
    QSet<QString> reached;
    for (int time = 0; time < 2; ++time) {
        press(Qt::Key_R, Qt::AltModifier);
        reached.insert(QApplication::focusWidget()->objectName());
    }
    EXPECT_EQ(reached, (QSet<QString>{QStringLiteral("command4"), QStringLiteral("Command13")}));
    QTest::keyClick(bench.control("Command13"), Qt::Key_Return);
    EXPECT_EQ(shown(), QStringLiteral("161"));
}

TEST_F(Window, aButtonThatGoesLeavesTheKeyboardToThePage) {
    for (const char* gone : {"suite", "avant"}) { // hidden, disabled
        bench.control<QWidget>(gone)->setFocus();
        QTest::keyClick(bench.control(gone), Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), bench.control<QWidget>("PictureTEXTE")) << gone;
    }
}

TEST_F(Window, keysWalkTheHistory) {
    show(2);
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(shown(), QStringLiteral("1"));
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(shown(), QStringLiteral("2"));
    QTest::keyClick(bench.control("Command3"), Qt::Key_Backspace); // wherever the focus is
    EXPECT_EQ(shown(), QStringLiteral("1"));
}

TEST_F(Window, comesBackToWhereAPageWasLeft) {
    press(Qt::Key_PageDown);
    press(Qt::Key_Down);
    const int left = scrolled();
    ASSERT_GT(left, 0);
    show(2);
    EXPECT_EQ(scrolled(), 0);
    QTest::mouseClick(bench.control<QWidget>("PictureTEXTE"), Qt::BackButton);
    EXPECT_EQ(shown(), QStringLiteral("1"));
    EXPECT_EQ(scrolled(), left);
    press(Qt::Key_Home);
    QTest::mouseClick(bench.control<QWidget>("PICTUREILLUS"), Qt::ForwardButton);
    EXPECT_EQ(shown(), QStringLiteral("2"));
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(scrolled(), 0);
    press(Qt::Key_PageDown);
    show(1); // called up anew, it is shown from its top
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(Window, keysThatEveryoneTries) {
    show(2);
    bench.messageBoxes.answers = {Answer::Cancel};
    bench.collaborators.log.clear();
    press(Qt::Key_L, Qt::ControlModifier);
    press(Qt::Key_P, Qt::ControlModifier);
    press(Qt::Key_F1);
    press(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_THAT(
        bench.collaborators.log,
        ElementsAre(QStringLiteral("search"), QStringLiteral("print"), QStringLiteral("help")));
    EXPECT_EQ(bench.messageBoxes.messages.size(), 1u);
    press(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(shown(), QStringLiteral("1"));
    bench.collaborators.log.clear();
    press(Qt::Key_P, Qt::ControlModifier); // may not be printed
    EXPECT_FALSE(bench.collaborators.log.contains(QStringLiteral("print")));
}

TEST_F(Window, keysWheelAndBarScrollATallPage) {
    auto* bar = bench.control<look::ScrollBar>("VScroll1");
    const int height = bench.control<QWidget>("PictureTEXTE")->height();
    const int furthest = height - 424;
    ASSERT_GT(furthest, 424);
    struct Row {
        int key;
        int scrolled;
    };
    for (const Row& row :
         {Row{Qt::Key_Up, 0}, Row{Qt::Key_Down, 22}, Row{Qt::Key_PageDown, 22 + 423},
          Row{Qt::Key_PageUp, 22}, Row{Qt::Key_End, furthest}, Row{Qt::Key_Down, furthest},
          Row{Qt::Key_Home, 0}}) {
        press(row.key);
        EXPECT_EQ(scrolled(), row.scrolled) << row.key;
    }
    QTest::keyClick(bench.control("Command3"), Qt::Key_Down); // a button does not keep the arrows
    EXPECT_EQ(scrolled(), 22);
    EXPECT_EQ(bar->value(), -22 * 15);

    QWheelEvent notch({400, 300}, {400, 300}, {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&bench.window, &notch);
    EXPECT_EQ(scrolled(), 22 + 3 * 22);
    bar->setValue(-1500);
    EXPECT_EQ(scrolled(), 100);

    // From the top of the next page, however far this one was scrolled.
    EXPECT_EQ(bar->singleStep(), 22 * 15);
    EXPECT_EQ(bar->pageStep(), 424 * 15 - 15);
    EXPECT_EQ(bar->minimum(), (424 - height) * 15);
    bench.cours.records[2] = page(3, lines(60));
    show(3);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(bar->value(), 0);
    EXPECT_EQ(bar->maximum(), 0);
    EXPECT_EQ(scrolled(), 0);

    bar->setValue(-1500);
    show(2); // fits the view
    EXPECT_EQ(scrolled(), 0);
    EXPECT_FALSE(bar->isVisible());
    press(Qt::Key_End);
    EXPECT_EQ(scrolled(), 0);
}

TEST_F(Window, aClickInThePageGivesItTheKeyboard) {
    show(2); // ends above the foot of the view
    const auto* page = bench.control<QWidget>("PictureTEXTE");
    auto* view = bench.control<QWidget>("framekx");
    ASSERT_LT(page->height(), view->height() - 50);
    for (const QPoint place : {QPoint(20, 10), QPoint(20, view->height() - 10)}) {
        bench.control("Command3")->setFocus();
        QTest::mouseClick(view->childAt(place) ? view->childAt(place) : view, Qt::LeftButton, {},
                          place);
        EXPECT_TRUE(page->hasFocus()) << place.y();
    }
    click("command6"); // a button leaves it where it is
    EXPECT_TRUE(page->hasFocus());
}

} // namespace
