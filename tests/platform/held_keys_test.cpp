#include "look/held_keys.h"

#include <QKeyEvent>
#include <QTest>
#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

namespace {

class Listener : public QWidget {
public:
    std::string heard; ///< "p" a press, "r" a repetition

protected:
    void keyPressEvent(QKeyEvent* event) override { heard += event->isAutoRepeat() ? 'r' : 'p'; }
};

/// As X tells it: a key held down is let go and pressed again at the same moment.
TEST(HeldKeys, marksThePressAtTheMomentOfTheRelease) {
    const look::HeldKeys heldKeys;
    Listener window;
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const auto tell = [&window](QEvent::Type type, quint32 scanCode, quint64 time,
                                bool marked = false) {
        QKeyEvent event(type, Qt::Key_Return, {}, scanCode, 0, 0, QStringLiteral("\r"), marked);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(window.windowHandle(), &event);
    };
    tell(QEvent::KeyPress, 36, 100);
    tell(QEvent::KeyRelease, 36, 700);
    tell(QEvent::KeyPress, 36, 700);
    tell(QEvent::KeyRelease, 36, 740);
    tell(QEvent::KeyPress, 36, 740, true); // marked already
    tell(QEvent::KeyRelease, 36, 780);
    tell(QEvent::KeyPress, 36, 781); // struck again
    tell(QEvent::KeyRelease, 36, 900);
    tell(QEvent::KeyPress, 104, 900); // another key
    EXPECT_EQ(window.heard, "prrpp");
    tell(QEvent::KeyRelease, 36, 0); // where there is no clock, nothing is known
    tell(QEvent::KeyPress, 36, 0);
    EXPECT_EQ(window.heard, "prrppp");
}

} // namespace
