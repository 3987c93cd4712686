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
        bench.cours.records[4][QStringLiteral("fpc")] =
            QStringLiteral("un prisme¶\r\n") + lines(60) + QStringLiteral("le Prisme¶\r\n") +
            lines(60);
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
    EXPECT_EQ(focused(), QStringLiteral("findField"));
    EXPECT_EQ(status(), QString());
    type(QStringLiteral("PRIS"));
    EXPECT_EQ(status(), QStringLiteral("1 sur 2"));
    EXPECT_EQ(scrolled(), 0);
    pressThere(Qt::Key_Return);
    EXPECT_EQ(status(), QStringLiteral("2 sur 2"));
    const int second = scrolled();
    EXPECT_GT(second, 400);
    type(QStringLiteral("m")); // the word in view stays the current one
    EXPECT_EQ(status(), QStringLiteral("2 sur 2"));

    struct Row {
        int key;
        Qt::KeyboardModifiers modifiers;
        QString status;
    };
    for (const Row& row :
         {Row{Qt::Key_F3, {}, QStringLiteral("1 sur 2")},
          Row{Qt::Key_F3, Qt::ShiftModifier, QStringLiteral("2 sur 2")},
          Row{Qt::Key_G, Qt::ControlModifier, QStringLiteral("1 sur 2")},
          Row{Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier, QStringLiteral("2 sur 2")},
          Row{Qt::Key_Enter, Qt::ShiftModifier, QStringLiteral("1 sur 2")}}) {
        pressThere(row.key, row.modifiers);
        EXPECT_EQ(status(), row.status) << row.key;
        EXPECT_EQ(scrolled(), row.status == u"1 sur 2" ? 0 : second);
    }
    pressThere(Qt::Key_Tab);
    EXPECT_EQ(focused(), QStringLiteral("findPrevious")) << "the field comes before the buttons";
    pressThere(Qt::Key_Backtab, Qt::ShiftModifier);
    click("findPrevious");
    EXPECT_EQ(status(), QStringLiteral("2 sur 2"));
    EXPECT_EQ(focused(), QStringLiteral("findField"));
    type(QStringLiteral(" z"));
    EXPECT_EQ(status(), QStringLiteral("Aucune occurrence"));
    EXPECT_FALSE(bench.control("findNext")->isEnabled());
    EXPECT_FALSE(isMarked());
}

TEST_F(Find, escapeGivesTheKeyboardBackToThePage) {
    const int view = bench.control<QWidget>("framekx")->height();
    press(Qt::Key_F3); // nothing is sought yet: the bar comes
    type(QStringLiteral("un p"));
    EXPECT_TRUE(isMarked());
    EXPECT_EQ(bench.control<QWidget>("framekx")->height(), view - 40);
    EXPECT_EQ(bench.control<QWidget>("VScroll1")->height(), view - 40);
    pressThere(Qt::Key_Escape);
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(isMarked());
    EXPECT_EQ(focused(), QStringLiteral("PictureTEXTE"));
    EXPECT_EQ(bench.control<QWidget>("framekx")->height(), view);
    press(Qt::Key_F, Qt::ControlModifier); // what was typed last is sought again
    EXPECT_EQ(status(), QStringLiteral("1 sur 1"));
    click("findClose");
    EXPECT_FALSE(isOpen());
}

TEST_F(Find, staysOpenForTheNextPageAndLeavesTheWindowItsKeys) {
    press(Qt::Key_F, Qt::ControlModifier);
    type(QStringLiteral("prisme"));
    bench.cours.records[1][QStringLiteral("fpc")] = lines(40) + QStringLiteral("prisme¶\r\n");
    show(2);
    EXPECT_EQ(focused(), QStringLiteral("findField"));
    EXPECT_EQ(status(), QStringLiteral("1 sur 1"));
    EXPECT_GT(scrolled(), 0);
    bench.collaborators.log.clear();
    pressThere(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(bench.collaborators.log, QStringList{QStringLiteral("calculator")});
    pressThere(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(shown(), QStringLiteral("5"));
    EXPECT_EQ(status(), QStringLiteral("1 sur 2"));
    pressThere(Qt::Key_PageDown);
    EXPECT_GT(scrolled(), 0);
    pressThere(Qt::Key_Backspace); // edits the text, and does not go back
    EXPECT_EQ(text(), QStringLiteral("prism"));
    EXPECT_EQ(shown(), QStringLiteral("5"));
}

TEST_F(Find, wordsOfTheSearchWindowAreMarkedUntilAnotherPageComes) {
    bench.collaborators.search.words = {{QStringLiteral("prisme"), QStringLiteral("accentué")},
                                        false};
    bench.collaborators.search.window.whileOpen = [this] { bench.state.SearchChosenPage = 3; };
    bench.cours.records[2][QStringLiteral("fpc")] =
        lines(40) + QStringLiteral("ACCENTUÉ, accentue¶\r\n");
    click("command4");
    EXPECT_FALSE(isOpen());
    EXPECT_GT(scrolled(), 0);
    EXPECT_GT(pixels(kCurrentMarkTint), 0);
    EXPECT_EQ(pixels(kMarkTint), 0);
    const std::size_t drawn = bench.window.shownPage().recording.size();
    // The bar opens on what is marked, and does not cover it.
    const int reached = scrolled();
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(status(), QStringLiteral("1 sur 1"));
    EXPECT_EQ(scrolled(), reached + 40);
    pressThere(Qt::Key_Escape);
    click("command4");
    bench.control<QScrollBar>("VScroll1")->setValue(0);
    press(Qt::Key_F, Qt::ControlModifier); // who looks elsewhere stays there
    EXPECT_EQ(scrolled(), 0);
    pressThere(Qt::Key_Escape);
    EXPECT_FALSE(isMarked());
    EXPECT_EQ(bench.window.shownPage().recording.size(), drawn);

    click("command4");
    EXPECT_TRUE(isMarked());
    show(5);
    EXPECT_FALSE(isMarked());
    bench.collaborators.search.window.whileOpen = [this] { bench.state.SearchChosenPage = 0; };
    click("command4"); // cancelled
    EXPECT_EQ(shown(), QStringLiteral("5"));
    EXPECT_FALSE(isMarked());
}

TEST_F(Find, marksAreCrispAndLeaveTheLettersDark) {
    bench.cours.records[2][QStringLiteral("fpc")] = QStringLiteral("un un¶\r\n");
    show(3);
    const int ink = pixels(0xff000000);
    press(Qt::Key_F, Qt::ControlModifier);
    type(QStringLiteral("un"));
    EXPECT_EQ(status(), QStringLiteral("1 sur 2"));
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
    EXPECT_GE(pixels(0xff000000), ink);
    EXPECT_GT(pixels(kMarkTint), 100);
}

using test_support::Links;
TEST_F(Links, showTheMarkBelowTheirCaption) {
    show(3, QStringLiteral("##LIERTun prisme#PAG002\r\n"));
    const QImage plain = picture("PictureTEXTE");
    bench.window.markWords({{QStringLiteral("prisme")}, true});
    const QImage marked = picture("PictureTEXTE");
    const QRect label = link("Labelien(0)")->geometry();
    const QPoint above = label.topRight() + QPoint(-4, 4);
    EXPECT_EQ(plain.pixel(above), kPaper);
    EXPECT_EQ(marked.pixel(above), kCurrentMarkTint);
    EXPECT_EQ(marked.pixel(label.left() + 4, above.y()), kPaper); // of "un"
}

} // namespace
