#pragma once

#include "exercises/exercise_case.h"
#include "exercises/exo.h"
#include "look/picture_box.h"
#include "platform/file_names.h"
#include "support/fake_message_boxes.h"
#include "viewer/window_bench.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QTest>

namespace exercises::test {

/// Notes what the test asks of the calculator.
struct FakeCalculator : CalculatorBeside {
    void openAfresh(const std::function<QPoint(QSize)>& placeFor) override {
        opened.append(placeFor({302, 430}));
    }
    void raise() override {}
    QList<QPoint> opened;
};

/// The test's real window over the real main window, on real tables.
class ExoCase : public ExerciseCase {
protected:
    ExoCase() {
        bench.start();
        shared.InstallDir = folder.path() + u'/';
    }
    ~ExoCase() override {
        if (exo)
            exo->hide(); // whatever a test left unanswered is nobody's business
    }

    /// Opens the window on what write() has written.
    Exo& openWindow(bool author = false) {
        exo.emplace(Exo::Parts{shared, state, bench.drawing, bench.pictures, bench.fonts,
                               bench.screen, messageBoxes, window, calculator,
                               bench.collaborators.reading, author},
                    bench.window);
        exo->setBlinkInterval(1);
        exo->start();
        EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &*exo; }));
        return *exo;
    }

    template <class Control = QAbstractButton>
    Control& control(const char* name) {
        auto* const found = exo->findChild<Control*>(QString::fromLatin1(name));
        EXPECT_TRUE(found) << name;
        return *found;
    }
    look::PictureBox& area() {
        return static_cast<look::PictureBox&>(control<QWidget>("Picture2"));
    }

    void click(const char* name) { QTest::mouseClick(&control<QWidget>(name), Qt::LeftButton); }
    /// Strikes a key where the keyboard is.
    void press(int key, bool held = false) {
        QWidget* const target = exo->focusWidget() ? exo->focusWidget() : &*exo;
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, {}, held);
        if (held)
            QCoreApplication::sendEvent(target, &event);
        else
            QTest::keyClick(target, Qt::Key(key));
    }
    QString focus() const {
        return exo->focusWidget() ? exo->focusWidget()->objectName() : QString();
    }
    /// Colour of the question area where a logical pixel begins.
    QColor colourAt(QPoint place) {
        const QImage picture = area().grab().toImage();
        return picture.pixelColor(place * picture.devicePixelRatio());
    }
    static QString textOf(QObject& widget, QAccessible::Text kind) {
        return QAccessible::queryAccessibleInterface(&widget)->text(kind);
    }

    test_support::WindowBench bench{test_support::pages(2)};
    test_support::FakeMessageBoxes messageBoxes;
    FakeCalculator calculator;
    std::optional<Exo> exo;
};

} // namespace exercises::test
