#pragma once

#include "viewer/link_controls.h"
#include "viewer/link_widget.h"
#include "viewer/page_code.h"
#include "viewer/window_bench.h"

#include <QTest>

#include <gtest/gtest.h>

namespace test_support {

/// The main window with its real links, on a course of 30 pages. A test writes the source of a page
/// and shows it.
class Links : public testing::Test {
protected:
    Links() {
        bench.window.attach({bench.commands, bench.actions, bench.pages,
                             bench.collaborators.allWith(links), bench.zoom, [this] {
                                 bench.bound.bindTo(bench.cours);
                                 return true;
                             }});
        bench.start();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&bench.window));
    }

    void write(int number, const QString& source) {
        bench.cours.records[number - 1] = page(number, source);
    }
    void show(int number) { bench.commands.runCode(viewer::pageCode(number)); }
    void show(int number, const QString& source) {
        write(number, source);
        show(number);
    }
    QString shown() const { return bench.bound.TextID; }

    viewer::LinkWidget* link(const char* name) {
        return dynamic_cast<viewer::LinkWidget*>(bench.control<QWidget>(name));
    }
    void click(const char* name) { QTest::mouseClick(link(name), Qt::LeftButton); }
    void press(int key) { QTest::keyClick(QApplication::focusWidget(), Qt::Key(key)); }
    QString focused() const { return bench.window.focusWidget()->objectName(); }

    QImage picture(const char* area) { return bench.control<QWidget>(area)->grab().toImage(); }

    WindowBench bench{pages(30)};
    viewer::LinkControls links{bench.window, bench.fonts, bench.window.shownPage().links};
};

} // namespace test_support
