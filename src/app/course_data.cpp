#include "app/course_data.h"

#include "coursedata/jet_recordset.h"
#include "platform/terminal.h"

namespace app {

void CourseData::bind(const QString& path) {
    auto opened = coursedata::openRecordset(path, QStringLiteral("cours"));
    if (!opened) {
        const QString reason = QString::fromStdString(opened.error().sentence);
        platform::tellOnTerminal(reason);
        unreadable_(path, reason);
        return;
    }
    cours_ = std::move(*opened);
    record_.bindTo(*cours_);
}

} // namespace app
