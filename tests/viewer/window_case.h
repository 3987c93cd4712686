#pragma once

#include "viewer/page_code.h"
#include "viewer/window_bench.h"

#include <QCursor>
#include <QTest>

#include <gtest/gtest.h>

namespace test_support {

/// Source of a page with so many lines of text.
inline QString lines(int count) {
    return QStringLiteral("Une ligne de texte¶\r\n").repeated(count);
}

inline QList<MemoryRecordset::Record> course() {
    auto all = pages(161);
    all[0] = page(1, lines(100), {{QStringLiteral("suite"), true}});
    all[1] = page(2, lines(3),
                  {{QStringLiteral("precedent"), true},
                   {QStringLiteral("imprimable"), true},
                   {QStringLiteral("sommaire"), 28.0}});
    return all;
}

/// The main window on a course of 161 pages: the first is tall and has a next one, the second may
/// be printed and has its summary on page 28.
class Window : public testing::Test {
protected:
    Window() {
        QCursor::setPos(kBesideTheWindow);
        bench.start();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&bench.window));
    }

    void click(const char* name) {
        QTest::mouseClick(bench.control<QWidget>(name), Qt::LeftButton);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&bench.window, Qt::Key(key), modifiers);
    }
    void show(int number) { bench.commands.runCode(viewer::pageCode(number)); }
    QString shown() const { return bench.bound.TextID; }
    /// How far the page is scrolled, in pixels.
    int scrolled() { return -bench.control<QWidget>("PictureTEXTE")->y(); }

    /// Where no button lies under the pointer.
    static constexpr QPoint kBesideTheWindow{799, 799};

    WindowBench bench{course()};
};

} // namespace test_support
