// The search in the page shown: its bar, its keys and its marks.

#include "look/palette.h"
#include "viewer/link_case.h"
#include "viewer/multim.h"
#include "viewer/window_case.h"

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>

namespace {

using namespace look;
using test_support::lines;
using test_support::Window;

class Find : public Window {
protected:
    Find() {
        bench.cours.records[4][u"fpc"_qs] =
            u"un prisme¶\r\n"_qs + lines(60) + u"le Prisme¶\r\n"_qs + lines(60);
        show(5);
    }

    void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    void pressThere(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
    QString status() { return bench.control<QWidget>("findStatus")->property("text").toString(); }
    QString text() { return bench.control<QLineEdit>("findField")->text(); }
    bool isOpen() { return bench.control<QWidget>("findBar")->isVisible(); }
    static QString focused() { return QApplication::focusWidget()->objectName(); }

    /// Pixels of a colour in what shows of an area.
    int pixels(QRgb colour, const char* area = "PictureTEXTE") {
        const QImage shown = bench.control<QWidget>(area)->grab().toImage();
        int count = 0;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                count += shown.pixel(x, y) == colour ? 1 : 0;
        return count;
    }
    bool isMarked() { return pixels(kMarkTint) + pixels(kCurrentMarkTint) > 0; }
};

TEST_F(Find, searchesWhileTypingAndWalksByKeysAndButtons) {
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(focused(), u"findField"_qs);
    EXPECT_EQ(status(), QString());
    type(u"PRIS"_qs);
    EXPECT_EQ(status(), u"1 sur 2"_qs);
    EXPECT_EQ(scrolled(), 0);
    pressThere(Qt::Key_Return);
    EXPECT_EQ(status(), u"2 sur 2"_qs);
    const int second = scrolled();
    EXPECT_GT(second, 400);
    type(u"m"_qs); // the word in view stays the current one
    EXPECT_EQ(status(), u"2 sur 2"_qs);

    struct Row {
        int key;
        Qt::KeyboardModifiers modifiers;
        QString status;
    };
    for (const Row& row :
         {Row{Qt::Key_F3, {}, u"1 sur 2"_qs}, Row{Qt::Key_F3, Qt::ShiftModifier, u"2 sur 2"_qs},
          Row{Qt::Key_G, Qt::ControlModifier, u"1 sur 2"_qs},
          Row{Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier, u"2 sur 2"_qs},
          Row{Qt::Key_Enter, Qt::ShiftModifier, u"1 sur 2"_qs}}) {
        pressThere(row.key, row.modifiers);
        EXPECT_EQ(status(), row.status) << row.key;
        EXPECT_EQ(scrolled(), row.status == u"1 sur 2" ? 0 : second);
    }
    pressThere(Qt::Key_Tab);
    EXPECT_EQ(focused(), u"findPrevious"_qs) << "the field comes before the buttons";
    pressThere(Qt::Key_Backtab, Qt::ShiftModifier);
    click("findPrevious");
    EXPECT_EQ(status(), u"2 sur 2"_qs);
    EXPECT_EQ(focused(), u"findField"_qs);
    type(u" z"_qs);
    EXPECT_EQ(status(), u"Aucune occurrence"_qs);
    EXPECT_FALSE(bench.control("findNext")->isEnabled());
    EXPECT_FALSE(isMarked());
}

TEST_F(Find, escapeGivesTheKeyboardBackToThePage) {
    const int view = bench.control<QWidget>("framekx")->height();
    press(Qt::Key_F3); // nothing is sought yet: the bar comes
    type(u"un p"_qs);
    EXPECT_TRUE(isMarked());
    EXPECT_EQ(bench.control<QWidget>("framekx")->height(), view - 40);
    EXPECT_EQ(bench.control<QWidget>("VScroll1")->height(), view - 40);
    pressThere(Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(isMarked());
    EXPECT_EQ(focused(), u"PictureTEXTE"_qs);
    EXPECT_EQ(bench.control<QWidget>("framekx")->height(), view);
    press(Qt::Key_F, Qt::ControlModifier); // what was typed last is sought again
    EXPECT_EQ(status(), u"1 sur 1"_qs);
    click("findClose");
    EXPECT_FALSE(isOpen());
}

TEST_F(Find, staysOpenForTheNextPageAndLeavesTheWindowItsKeys) {
    press(Qt::Key_F, Qt::ControlModifier);
    type(u"prisme"_qs);
    bench.cours.records[1][u"fpc"_qs] = lines(40) + u"prisme¶\r\n"_qs;
    show(2);
    EXPECT_EQ(focused(), u"findField"_qs);
    EXPECT_EQ(status(), u"1 sur 1"_qs);
    EXPECT_GT(scrolled(), 0);
    bench.neighbours.log.clear();
    pressThere(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(bench.neighbours.log, QStringList{u"calculator"_qs});
    pressThere(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(shown(), u"5"_qs);
    EXPECT_EQ(status(), u"1 sur 2"_qs);
    pressThere(Qt::Key_PageDown);
    EXPECT_GT(scrolled(), 0);
    pressThere(Qt::Key_Backspace); // edits the text, and does not go back
    EXPECT_EQ(text(), u"prism"_qs);
    EXPECT_EQ(shown(), u"5"_qs);
}

TEST_F(Find, wordsOfTheSearchWindowAreMarkedUntilAnotherPageComes) {
    bench.neighbours.search.words = {{u"prisme"_qs, u"accentué"_qs}, false};
    bench.neighbours.search.window.whileOpen = [this] { bench.state.SearchChosenPage = 3; };
    bench.cours.records[2][u"fpc"_qs] = lines(40) + u"ACCENTUÉ, accentue¶\r\n"_qs;
    click("command4");
    EXPECT_FALSE(isOpen());
    EXPECT_GT(scrolled(), 0);
    EXPECT_GT(pixels(kCurrentMarkTint), 0);
    EXPECT_EQ(pixels(kMarkTint), 0);
    const std::size_t drawn = bench.window.recording().size();
    // The bar opens on what is marked, and does not cover it.
    const int reached = scrolled();
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(status(), u"1 sur 1"_qs);
    EXPECT_EQ(scrolled(), reached + 40);
    pressThere(Qt::Key_Escape);
    click("command4");
    bench.control<QScrollBar>("VScroll1")->setValue(0);
    press(Qt::Key_F, Qt::ControlModifier); // who looks elsewhere stays there
    EXPECT_EQ(scrolled(), 0);
    pressThere(Qt::Key_Escape);
    EXPECT_FALSE(isMarked());
    EXPECT_EQ(bench.window.recording().size(), drawn);

    click("command4");
    EXPECT_TRUE(isMarked());
    show(5);
    EXPECT_FALSE(isMarked());
    bench.neighbours.search.window.whileOpen = [this] { bench.state.SearchChosenPage = 0; };
    click("command4"); // cancelled
    EXPECT_EQ(shown(), u"5"_qs);
    EXPECT_FALSE(isMarked());
}

TEST_F(Find, marksAreCrispAndLeaveTheLettersDark) {
    bench.cours.records[2][u"fpc"_qs] = u"un un¶\r\n"_qs;
    show(3);
    const int ink = pixels(kPageText);
    press(Qt::Key_F, Qt::ControlModifier);
    type(u"un"_qs);
    EXPECT_EQ(status(), u"1 sur 2"_qs);
    // One mark is as large as the other, and the current one has a frame of whole pixels besides.
    const QImage shown = bench.control<QWidget>("PictureTEXTE")->grab().toImage();
    QRect current, frame;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x) {
            if (shown.pixel(x, y) == kCurrentMarkTint)
                current |= QRect(x, y, 1, 1);
            if (shown.pixel(x, y) == kInk)
                frame |= QRect(x, y, 1, 1);
        }
    // At the edge of the page the frame does not get lost.
    EXPECT_EQ(frame, current.adjusted(-1, -1, 1, 1));
    EXPECT_EQ(frame.topLeft(), QPoint());
    EXPECT_GE(pixels(kPageText), ink);
    EXPECT_GT(pixels(kMarkTint), 100);
}

using test_support::Links;
TEST_F(Links, showTheMarkBelowTheirCaption) {
    show(3, u"##LIERTun prisme#PAG002\r\n"_qs);
    const QImage plain = picture("PictureTEXTE");
    bench.window.markWords({{u"prisme"_qs}, true});
    const QImage marked = picture("PictureTEXTE");
    const QRect label = link("Labelien(0)")->geometry();
    const QPoint above = label.topRight() + QPoint(-4, 4);
    EXPECT_EQ(plain.pixel(above), kPaper);
    EXPECT_EQ(marked.pixel(above), kCurrentMarkTint);
    EXPECT_EQ(marked.pixel(label.left() + 4, above.y()), kPaper); // of "un"
}

} // namespace
