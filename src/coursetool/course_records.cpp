#include "coursetool/course_records.h"

#include "coursedata/jet_recordset.h"
#include "coursetool/paths.h"
#include "platform/file_names.h"

namespace coursetool {

namespace {

std::optional<QString> find(const std::filesystem::path& course, const char* fileName) {
    return platform::findWithoutCase(QString::fromStdString(shown(course)),
                                     QString::fromLatin1(fileName));
}

} // namespace

std::optional<CourseRecords> openRecords(const std::filesystem::path& course, const char* fileName,
                                         const TableRule& table, Report& report) {
    const auto file = find(course, fileName);
    if (!file) {
        report.fault({shown(course)},
                     std::string(fileName) == kCourseFile
                         ? "aucun cours ici : Zekx.mdb manque"
                         : std::string("aucun test ici : ") + fileName + " manque");
        return std::nullopt;
    }
    auto records = coursedata::openRecordset(*file, QString::fromLatin1(table.name.data()));
    if (!records) {
        report.fault({file->toStdString()}, records.error().sentence);
        return std::nullopt;
    }
    return CourseRecords{file->toStdString(), *std::move(records)};
}

bool hasDatabase(const std::filesystem::path& course, const char* fileName) {
    return find(course, fileName).has_value();
}

} // namespace coursetool
