#pragma once

#include "app/course_data.h"
#include "coursedata/image_list.h"
#include "exercises/exo_opener.h"
#include "viewer/multim.h"
#include "viewer/page_loader.h"

namespace app {

/// Shows in the running shell a course whose databases and files have changed.
class CourseReload {
public:
    struct Parts {
        shell::SharedState& state;
        coursedata::BoundRecord& record;
        CourseData& course;
        coursedata::ImageList& symbols;
        viewer::PageLoader& pages;
        viewer::Multim& window;
        exercises::ExoOpener& exercise;
    };
    explicit CourseReload(const Parts& parts) : parts_(parts) {}

    /// The page that is shown stays where it is scrolled, a test with what was answered; a page
    /// that is gone gives way to the first one. False, and nothing done, while the window is at
    /// work or another one stands over it: to be tried again.
    bool run();

private:
    void showAgain();

    Parts parts_;
};

} // namespace app
