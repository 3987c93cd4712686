#pragma once

#include "coursedata/recordset.h"
#include "shell/start_up.h"

#include <memory>

namespace viewer {
class PageLoader;
}

namespace app {

/// The course database of the installation directory: opened by start-up, shown by the page loader.
class CourseData : public shell::CourseBinding {
public:
    explicit CourseData(viewer::PageLoader& pages) : pages_(pages) {}

    void bind(const QString& path) override;

private:
    viewer::PageLoader& pages_;
    std::unique_ptr<coursedata::Recordset> cours_;
};

} // namespace app
