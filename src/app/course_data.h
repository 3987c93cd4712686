#pragma once

#include "coursedata/bound_record.h"
#include "shell/start_up.h"

#include <functional>
#include <memory>

namespace app {

/// The course database of the installation directory: opened by start-up.
class CourseData : public shell::CourseBinding {
public:
    /// Told of a database that cannot be read: its file, and why, in French.
    using Unreadable = std::function<void(const QString& file, const QString& reason)>;

    CourseData(coursedata::BoundRecord& record, Unreadable unreadable)
        : record_(record), unreadable_(std::move(unreadable)) {}

    void bind(const QString& path) override;

private:
    coursedata::BoundRecord& record_;
    Unreadable unreadable_;
    std::unique_ptr<coursedata::Recordset> cours_;
};

} // namespace app
