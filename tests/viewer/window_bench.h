#pragma once

#include "coursedata/page_index.h"
#include "look/zoom.h"
#include "markup/draw_page.h"
#include "page/faces/font_book.h"
#include "support/fake_message_boxes.h"
#include "support/fake_pictures.h"
#include "support/fake_screen.h"
#include "viewer/action_dispatcher.h"
#include "viewer/course.h"
#include "viewer/fakes.h"
#include "viewer/main_commands.h"
#include "viewer/multim.h"
#include "viewer/page_loader.h"

#include <QPushButton>

namespace test_support {

/// The real main window on a course in memory, put together as the program does it.
class WindowBench {
public:
    explicit WindowBench(QList<test_support::MemoryRecordset::Record> course)
        : cours(std::move(course)) {
        zoom.setWindow(window, {{}, [this] { return window.ownPlace(); }});
        window.attach({commands, actions, pages, collaborators.all(), zoom, [this] {
                           bound.bindTo(cours);
                           return !whileStarting || whileStarting();
                       }});
    }

    /// Starts the program, up to the first page.
    WindowBench& start() {
        started = window.Form_Load();
        collaborators.log.clear();
        return *this;
    }

    template <class Control = QPushButton>
    Control* control(const char* name) {
        return window.findChild<Control*>(QString::fromLatin1(name));
    }

    /// Fixed numbers of the pages in the history, up to the position.
    QList<int> history() const {
        QList<int> visited;
        for (int slot = 1; slot <= state.HistoryPos; ++slot)
            visited.append(state.HistoryPages.valueOr(slot, 0));
        return visited;
    }

    test_support::MemoryRecordset cours;
    test_support::FakeScreen screen;
    test_support::FakeMessageBoxes messageBoxes;
    FakeCollaborators collaborators;
    std::function<bool()> whileStarting;
    bool started = false;

    page::FontBook fonts;
    shell::SharedState state;
    markup::DrawingState drawing;
    coursedata::BoundRecord bound;
    look::Zoom zoom;
    viewer::Multim window{state, fonts, screen};
    FakePictures pictures;
    markup::DrawingTools tools{drawing, pictures, fonts, &window};
    viewer::PageLoader pages{state, bound, window, tools, window.shownPage(), collaborators.video};
    viewer::ActionDispatcher actions{state,
                                     pages,
                                     window,
                                     collaborators.modules,
                                     collaborators.exercise,
                                     collaborators.orderForm};
    viewer::MainCommands commands{state, actions, window, collaborators.all(), messageBoxes};
};

} // namespace test_support
