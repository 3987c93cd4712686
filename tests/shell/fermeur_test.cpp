#include "shell/fermeur.h"
#include "support/files.h"

#include <QImage>
#include <QTest>

using shell::Fermeur;

namespace {

/// Whether a widget has been painted.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& watched) { watched.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }

    bool painted = false;
};

} // namespace

TEST(Fermeur, closesOnceWhenItHasBeenPaintedAndCannotBeStopped) {
    QWidget window;
    window.setGeometry(100, 50, 600, 400);
    window.show();
    int closings = 0;
    PaintWatch* watch = nullptr;
    Fermeur* shown = nullptr;
    Fermeur fermeur(&window, [&] {
        ++closings;
        EXPECT_TRUE(watch->painted);
        QTest::keyClick(shown, Qt::Key_Escape);
        EXPECT_FALSE(shown->close());
        shown->repaint();
        QCoreApplication::processEvents();
    });
    PaintWatch watching(fermeur);
    watch = &watching;
    shown = &fermeur;
    EXPECT_EQ(fermeur.geometry().center(), window.geometry().center());
    fermeur.run();
    EXPECT_EQ(closings, 1);
    EXPECT_TRUE(fermeur.isVisible()); // until the program ends

    const QImage picture = fermeur.grab().toImage();
    EXPECT_EQ(picture.pixelColor(200, 1), QColor(255, 255, 240));
    EXPECT_LT(picture.pixelColor(200, picture.height() - 3).blue(), 230);
}

TEST(Fermeur, closesOverAWindowThatCannotBeSeen) {
    QWidget hidden;
    bool closed = false;
    Fermeur fermeur(&hidden, [&] { closed = true; });
    fermeur.run();
    EXPECT_TRUE(closed);
    EXPECT_EQ(fermeur.parentWidget(), nullptr);
}
