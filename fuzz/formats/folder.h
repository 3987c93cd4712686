#pragma once

#include "format.h"

#include <filesystem>
#include <string>

namespace coursetool {
class Report;
}

namespace fuzz {

// Courses are folders. One is written as a text with a line "=== NAME" before each file's content;
// "=== NAME -> OTHER" is a symbolic link to another file of the folder, and "=== NAME -> !" one to
// a file outside, which nobody may touch.

/// A course under `root`, beside something that is none of its business.
class CourseFolder {
public:
    /// Empties and fills scratchFolder().
    CourseFolder();

    std::filesystem::path root() const;   ///< of the sources or the installed course
    std::filesystem::path output() const; ///< for what is made of it; not there yet

    /// Names lead nowhere else: what would is left out of them.
    void write(std::string_view files) const;
    void writeFile(const std::string& name, Input content) const;

    /// Ends the process when anything outside the course and its output has changed, or when a line
    /// of the report is more than a line.
    void requireWithin(const coursetool::Report& report) const;

private:
    std::filesystem::path outside() const;
    void writePart(std::string_view heading, std::string_view content) const;

    std::filesystem::path folder_;
};

} // namespace fuzz
