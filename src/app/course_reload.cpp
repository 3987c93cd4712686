#include "app/course_reload.h"

#include "coursedata/course_directory.h"
#include "coursedata/databases.h"
#include "coursedata/page_index.h"
#include "page/numbers.h"
#include "text/rounding.h"

#include <QScopedValueRollback>

namespace app {

bool CourseReload::run() {
    // Of the windows that a command opens, only the test can be shown another course under it.
    if (parts_.window.isWorking() && !parts_.exercise.isOpen())
        return false;
    if (!parts_.exercise.reload())
        return false;
    showAgain();
    return true;
}

void CourseReload::showAgain() {
    const QString number = parts_.record.TextID;
    const int scrolled = parts_.window.scrolled();
    if (const auto path = coursedata::findCourseDatabase(parts_.state.InstallDir))
        parts_.course.bind(*path);
    parts_.symbols.listAnew();
    if (const coursedata::Recordset* records = parts_.record.records())
        coursedata::buildPageIndex(*records, parts_.state);
    const auto code = text::toInt32(page::leadingNumber(number));
    if (const auto position = code ? coursedata::positionOfCode(parts_.state, *code) : std::nullopt)
        parts_.record.moveTo(*position);
    // It is the same page, or none that was gone to.
    const QScopedValueRollback<bool> recording(parts_.state.HistoryRecording, false);
    parts_.pages.takeOverOrderIndex();
    parts_.pages.showCurrentRecord();
    if (parts_.record.TextID == number)
        parts_.window.scrollTo(scrolled);
}

} // namespace app
