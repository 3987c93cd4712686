#include "coursetool/course_databases.h"

#include "coursetool/paths.h"
#include "coursetool/tables.h"

namespace coursetool {

CourseDatabases::CourseDatabases(const DatabasePlaces& places, Report& report)
    : courseDatabase_(places.course, shown(places.shownIn / kCourseFile), report),
      exerciseDatabase_(places.exercises, shown(places.shownIn / kExerciseFile), report),
      cours_(courseDatabase_, coursTable(), report),
      description_(exerciseDatabase_, descriptionTable(), report),
      contenu_(exerciseDatabase_, contenuTable(), report) {}

TableTarget& CourseDatabases::table(SourceKind kind) {
    switch (kind) {
    case SourceKind::Page:
        return cours_;
    case SourceKind::Test:
        return description_;
    case SourceKind::Question:
        break;
    }
    return contenu_;
}

void CourseDatabases::take(SourceKind kind, const std::shared_ptr<const ReadSource>& record) {
    table(kind).append(record->fields.values, record->place);
}

/// The pages last, so that whoever reads the new ones finds the tests that they name.
void CourseDatabases::finish() {
    exerciseDatabase_.finish();
    courseDatabase_.finish();
}

} // namespace coursetool
