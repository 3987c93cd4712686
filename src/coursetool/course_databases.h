#pragma once

#include "coursetool/course_sources.h"
#include "coursetool/table_target.h"

#include <filesystem>

namespace coursetool {

/// Where the databases of a course are written, and the course they are told as parts of.
struct DatabasePlaces {
    std::filesystem::path course;    ///< file of the pages
    std::filesystem::path exercises; ///< file of the tests
    std::filesystem::path shownIn;
};

/// The two databases of a course, written from its records. They stand there, whole, once
/// `finish()` has succeeded for each; what was there before stays until then.
class CourseDatabases : public RecordSink {
public:
    CourseDatabases(const DatabasePlaces& places, Report& report);

    void take(SourceKind kind, const std::shared_ptr<const ReadSource>& record) override;
    void finish();

private:
    TableTarget& table(SourceKind kind);

    DatabaseTarget courseDatabase_;
    DatabaseTarget exerciseDatabase_;
    TableTarget cours_;
    TableTarget description_;
    TableTarget contenu_;
};

} // namespace coursetool
