#include "app/course_data.h"

#include "coursedata/jet_recordset.h"
#include "platform/terminal.h"

namespace app {

void CourseData::bind(const QString& path) {
    auto opened = coursedata::openRecordset(path, QStringLiteral("cours"));
    if (!opened) {
        // The window just stays empty; who looks for the reason finds it here.
        platform::tellOnTerminal(QString::fromStdString(opened.error().sentence));
        return;
    }
    cours_ = std::move(*opened);
    record_.bindTo(*cours_);
}

} // namespace app
