#include "coursetool/course_records.h"

#include "coursedata/jet_recordset.h"
#include "coursetool/installed_course.h"
#include "coursetool/paths.h"

namespace coursetool {

std::optional<CourseRecords> openRecords(const std::filesystem::path& course, const char* fileName,
                                         const TableRule& table, Report& report) {
    const auto file = findDatabase(course, fileName, report);
    if (!file)
        return std::nullopt;
    auto records = coursedata::openRecordset(QString::fromStdString(shown(*file)),
                                             QString::fromLatin1(table.name.data()));
    if (!records) {
        report.fault({shown(*file)}, records.error().sentence);
        return std::nullopt;
    }
    return CourseRecords{shown(*file), *std::move(records)};
}

} // namespace coursetool
