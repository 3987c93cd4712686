#pragma once

#include "coursedata/bound_record.h"
#include "shell/start_up.h"

#include <memory>

namespace app {

/// The course database of the installation directory: opened by start-up.
class CourseData : public shell::CourseBinding {
public:
    explicit CourseData(coursedata::BoundRecord& record) : record_(record) {}

    void bind(const QString& path) override;

private:
    coursedata::BoundRecord& record_;
    std::unique_ptr<coursedata::Recordset> cours_;
};

} // namespace app
