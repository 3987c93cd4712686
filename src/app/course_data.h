#pragma once

#include "platform/jet_recordset.h"
#include "shell/start_up.h"

#include <memory>

namespace app {

/// The course database of the installation directory, opened by start-up.
class CourseData : public shell::CourseBinding {
public:
    void bind(const QString& path) override;

    /// The table "cours"; null when it could not be opened.
    platform::Recordset* cours() { return cours_.get(); }

private:
    std::unique_ptr<platform::Recordset> cours_;
};

} // namespace app
