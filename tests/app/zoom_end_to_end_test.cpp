// The whole program enlarged while it runs, and screens with little room.

#include "app/end_to_end_case.h"
#include "app/x11_picture.h"

namespace app::test {
namespace {

class Zoomed : public EndToEnd {
protected:
    explicit Zoomed(QSize screen = {1600, 1200}) : EndToEnd(screen) {}

    /// The contents of the main window.
    QImage contents() const { return test_support::pictureOfScreen(session_.display(), place()); }

    /// A part of the contents, in pixels of the program at `scale`, from its left and top.
    QImage part(const QRect& area, double scale) const {
        const QRectF inner(QPointF(area.topLeft()) * scale, QSizeF(area.size()) * scale);
        return contents().copy(inner.toAlignedRect());
    }

    void startAndWait(const QStringList& arguments, QSize size) {
        start(arguments);
        run("xdotool", {"mousemove", "5", "5"}); // over no button
        ASSERT_TRUE(eventually([&] { return place().size() == size; }));
    }

    void quit() {
        shell_.kill();
        shell_.waitForFinished();
    }
};

TEST_F(Zoomed, showsWhatItShowsWhenStartedAtThatScale) {
    startAndWait({"--scale", "1.25"}, {1000, 750});
    press("Page_Down");
    QImage expected;
    // The same twice running: everything is drawn.
    ASSERT_TRUE(eventually([&] {
        const QImage before = std::exchange(expected, contents());
        return before == expected;
    }));
    const QRect where = place();
    quit();

    startAndWait({}, {800, 600});
    press("Page_Down");
    press("ctrl+plus");
    press("ctrl+KP_Add");
    EXPECT_TRUE(eventually([&] { return contents() == expected; }));
    EXPECT_EQ(place(), where);
    press("ctrl+minus");
    EXPECT_TRUE(eventually([&] { return place().size() == QSize(880, 660); }));
    press("ctrl+0");
    EXPECT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
}

TEST_F(Zoomed, growsNoLargerThanTheScreenHolds) {
    startAndWait({}, {800, 600});
    movePointer(400, 300);
    run("xdotool",
        {"keydown", "ctrl", "click", "--repeat", "12", "--delay", "100", "4", "keyup", "ctrl"});
    ASSERT_TRUE(eventually([&] { return place().width() > 1400; }));
    EXPECT_TRUE(eventually([&] {
        return QRect(0, 0, 1600, 1200).contains(place()) && place().top() > 10; // its title too
    }));
}

TEST_F(Zoomed, takesItsOtherWindowsAlong) {
    startAndWait({}, {800, 600});
    click(312, 32); // Command3
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Calculatrice"; }));
    run("xdotool", {"windowmove", window("Calculatrice"), "300", "250"});
    ASSERT_TRUE(eventually([&] { return place("Calculatrice").x() < 310; }));
    const QPoint beside = place("Calculatrice").topLeft() - place().topLeft();
    run("xdotool", {"type", "2*3"});
    press("ctrl+plus");
    press("ctrl+plus");
    EXPECT_TRUE(eventually([&] {
        return place("Calculatrice").size() == (QSizeF(302, 430) * 1.25).toSize() &&
               place().size() == QSize(1000, 750);
    }));
    EXPECT_LT(
        (place("Calculatrice").topLeft() - place().topLeft() - beside * 1.25).manhattanLength(),
        20); // within its frame
    press("Return");
    EXPECT_TRUE(eventually([&] {
        click(qRound(25 * 1.25), qRound(34 * 1.25), "Calculatrice", 2);
        return run(SELECTED_TEXT, {}) == "6";
    }));
}

/// A page with a link to a test.
class ZoomedTest : public Zoomed {
protected:
    QString sources() override {
        const QString directory = directory_.filePath("sources");
        QDir().mkpath(directory + "/pages");
        QDir().mkpath(directory + "/exercises/a");
        test_support::writeFile(directory + "/pages/1.page",
                                "+++\nNumeropage = 1\nIndex = 1\n+++\n##SI12\n##PIY020\n"
                                "##LIERTun mot#EXO001\n##PIY040\n");
        test_support::writeFile(directory + "/exercises/a/chapter.toml",
                                "Chapitre = 1\nTitre = \"A\"\nNbquest = 1\n");
        test_support::writeFile(directory + "/exercises/a/101.question",
                                "+++\nREFERENCE = 101\ntype = 3\nsolution = \"oui\"\n+++\n"
                                "##SI12\nOui ?¶\n##EXOTX\n");
        return directory;
    }
};

TEST_F(ZoomedTest, fillsTheScreenWithThePageAndWithATest) {
    startAndWait({}, {800, 600});
    press("F11");
    const QRect screen(0, 0, 1600, 1200);
    EXPECT_TRUE(eventually([&] { return place() == screen; }));
    click(190 * 2, 150 * 2); // the link
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Exercices"; }))
        << activeTitle().toStdString();
    EXPECT_TRUE(eventually([&] { return place("Exercices") == screen; }));
    press("F11");
    EXPECT_TRUE(eventually([&] {
        return place("Exercices").size() == QSize(800, 600) && place().size() == QSize(800, 600);
    }));
    press("F11");
    EXPECT_TRUE(eventually([&] { return place("Exercices") == screen; }));
    press("Escape");
    ASSERT_TRUE(eventually([&] { return activeTitle() == "Fermer"; }));
    press("Return");
    ASSERT_TRUE(eventually([&] { return windows("Exercices").isEmpty(); }));
    EXPECT_EQ(place(), screen);
    press("Escape");
    EXPECT_TRUE(eventually([&] { return place().size() == QSize(800, 600); }));
}

/// The screen that the product is made for, and low ones.
class LowScreen : public Zoomed, public testing::WithParamInterface<QSize> {
protected:
    LowScreen() : Zoomed(GetParam()) {}
};

TEST_P(LowScreen, showsAllOfThePage) {
    start();
    const QRect screen(QPoint(), GetParam());
    ASSERT_TRUE(eventually([&] { return place() == screen; }));
    press("F11"); // has no other size to go back to
    press("Escape");
    // In the middle, "Quitter" at its right upper end can be clicked.
    const double scale = std::min(screen.width() / 800.0, screen.height() / 600.0);
    click(qRound(screen.width() / 2.0 + 360 * scale), qRound(32 * scale));
    EXPECT_TRUE(eventually([&] { return activeTitle() == "Quitter"; }));
    EXPECT_EQ(place(), screen);
}

INSTANTIATE_TEST_SUITE_P(Sizes, LowScreen,
                         testing::Values(QSize(800, 600), QSize(1024, 600), QSize(1280, 576)),
                         [](const auto& tested) {
                             return "w" + std::to_string(tested.param.width()) + "h" +
                                    std::to_string(tested.param.height());
                         });

} // namespace
} // namespace app::test
