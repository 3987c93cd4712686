#pragma once

#include <QString>

#include <optional>

namespace coursedata {

// The databases of the course in `directory`, when they are there; see findDatabase().
std::optional<QString> findCourseDatabase(const QString& directory);
std::optional<QString> findExerciseDatabase(const QString& directory);

/// Where a course may lie.
struct CourseCandidates {
    /// Named on the command line. No other candidate counts then: who names a course does not want
    /// another one opened instead.
    std::optional<QString> named;
    /// Directory of the program file.
    QString programDirectory;
    /// The demonstration course installed with the program.
    QString demonstration;
};

/// The first candidate that holds a course database. When none does, the first candidate there is:
/// start-up, given this directory, says that the database is absent.
QString chooseCourseDirectory(const CourseCandidates& candidates);

} // namespace coursedata
