#pragma once

#include "check/check_pictures.h"
#include "check/course.h"
#include "check/rule.h"
#include "page/text_metrics.h"

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace check {

/// Lets the rules loose: on one page or question at a time, and on the course as a whole.
class Checker {
public:
    /// `files` is where the course's pictures lie. What is referred to must outlive it.
    Checker(const page::TextMetrics& metrics, const std::filesystem::path& files,
            const coursetool::Drives& drives)
        : metrics_(metrics), pictures_(files, drives) {}

    std::vector<Finding> lookAt(const Page& page);
    std::vector<Finding> lookAt(const Question& question);
    /// What no page shows by itself.
    std::vector<Finding> lookAtWhole(Course& course);

private:
    void lookAtLines(const Source& source, Findings& findings) const;
    void lookAtDrawing(const Source& source, const Source* comment, Findings& findings);

    const page::TextMetrics& metrics_;
    CheckPictures pictures_;
};

/// The findings that are left to tell, by file, record and line: not those that the course or one
/// of its files silences, or `ignored` does, nor those that another explains.
void settle(const Course& course, const std::set<std::string>& ignored,
            std::vector<Finding>& findings);

} // namespace check
