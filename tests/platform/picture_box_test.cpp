#include "look/ink_rim.h"
#include "look/picture_box.h"
#include "page/surface.h"
#include "platform/qt/screen_factor.h"

#include <QPaintEvent>
#include <QTest>

#include <gtest/gtest.h>

namespace {

/// A page in a window, and how often it was painted.
class PagePaints : public QObject, public testing::Test {
protected:
    PagePaints() {
        surface.print(QStringLiteral("Une page"));
        window.resize(640, 300);
        box.setGeometry(20, 20, 600, 200);
        new look::InkRim(box, &window);
        box.showDrawing();
        box.installEventFilter(this);
        window.show();
        settle();
    }
    ~PagePaints() override { platform::setScreenFactor(*window.screen(), 1); }

    bool eventFilter(QObject*, QEvent* event) override {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    static void settle() {
        for (int i = 0; i < 5; ++i)
            QTest::qWait(1);
    }

    page::FontBook fonts;
    page::Recording recording;
    page::Surface surface{page::SurfaceId::PictureTexte, 9000, fonts, recording};
    QWidget window;
    look::PictureBox box{page::SurfaceId::PictureTexte, 600, 0xffffffff, fonts, recording, &window};
    int paints = 0;
};

TEST_F(PagePaints, areNoMoreThanOneForAnotherDensity) {
    for (const double factor : {2.0, 1.5}) {
        paints = 0;
        platform::setScreenFactor(*window.screen(), factor);
        box.update();
        settle();
        EXPECT_EQ(box.devicePixelRatioF(), factor);
        EXPECT_EQ(paints, 1) << factor;
    }
}

TEST_F(PagePaints, areNotForTheKeyboard) {
    box.setFocusPolicy(Qt::StrongFocus);
    window.activateWindow();
    settle();
    paints = 0;
    box.setFocus();
    settle();
    EXPECT_TRUE(box.hasFocus());
    box.clearFocus();
    settle();
    EXPECT_EQ(paints, 0);
}

TEST_F(PagePaints, leaveOutWhatThePageCovers) {
    class Below : public QWidget {
    public:
        using QWidget::QWidget;
        QRegion painted;

    protected:
        void paintEvent(QPaintEvent* event) override { painted += event->region(); }
    };
    Below below(&window);
    below.setGeometry(window.rect());
    below.lower();
    below.show();
    settle();
    below.painted = {};
    window.update();
    below.update();
    settle();
    EXPECT_TRUE(below.painted.contains(QPoint(5, 5)));
    EXPECT_FALSE(below.painted.contains(box.geometry().center()));
    box.setInset(1); // its border shows what is below while nothing is drawn
    below.painted = {};
    below.update();
    settle();
    EXPECT_TRUE(below.painted.contains(box.geometry().center()));
}

} // namespace
