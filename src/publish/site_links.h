#pragma once

#include "coursetool/course_sheets.h"
#include "page/sheet.h"

#include <QString>

#include <set>

namespace publish {

/// Where the links of a course lead within its site: "#p12" is page 12, "#t3" the test of chapter
/// 3, "#m23" module 23 or what is said of it, "#m23-4" its exercise 4, "#f2" the floating menu of
/// picture 2. What has no place there, as the order form, and codes of another kind lead nowhere.
class SiteLinks {
public:
    /// `pages` outlives it.
    SiteLinks(const coursetool::CourseSheets& pages, std::set<int> tests)
        : pages_(pages), tests_(std::move(tests)) {}

    /// Of a code; empty when it leads nowhere.
    QString ofCode(const QString& code) const;
    /// Of a link on a page.
    QString of(const page::LinkArea& link) const;
    /// Of a question's link, whose tag is a bare page number.
    QString ofPageNumber(const QString& tag) const;

private:
    const coursetool::CourseSheets& pages_;
    std::set<int> tests_;
};

} // namespace publish
