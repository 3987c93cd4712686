#include "coursetool/installed_course.h"

#include "coursetool/file_list.h"
#include "coursetool/paths.h"
#include "coursetool/tables.h"

#include <string_view>

namespace coursetool {

std::optional<std::filesystem::path> findDatabase(const std::filesystem::path& course,
                                                  const char* name, Report& report) {
    if (auto found = coursedata::findDatabase(course, name))
        return found;
    entriesOf(course, report); // tells when the directory is what cannot be read
    const std::string what = name == std::string_view(kCourseFile) ? "aucun cours" : "aucun test";
    report.fault({shown(course)}, what + " ici : " + name + " manque");
    return std::nullopt;
}

} // namespace coursetool
