#pragma once

#include "coursedata/bound_record.h"
#include "coursetool/course_records.h"
#include "coursetool/lost_text.h"
#include "markup/drawn_page.h"
#include "markup/picture_source.h"
#include "page/sheet.h"
#include "page/text_metrics.h"
#include "shell/shared_state.h"

#include <optional>
#include <vector>

namespace coursetool {

/// A page of a course, drawn, with what goes with it.
struct DrawnCoursePage {
    coursedata::BoundRecord record;
    markup::DrawnPage page;
    page::Sheet sheet;
};

/// The pages of an installed course, in record order, drawn as the shell shows them.
class CourseSheets {
public:
    /// A fault, and nothing, when there is no course.
    static std::optional<CourseSheets> open(const std::filesystem::path& course, Report& report);

    int count() const { return static_cast<int>(numbers_.size()); }
    const std::string& file() const { return pages_.file; }

    /// The course's title: that of its first page.
    QString title() const;

    /// Fixed number of the page at a position; nothing for a record that has none.
    std::optional<int> number(int position) const;

    /// Position of the record that a link to this number shows, which need not have it: numbers
    /// that no page has lead to the first record.
    int positionShown(int number) const;
    /// The same for a link's tag; nothing when the tag leads to no page.
    std::optional<int> positionShown(const QString& tag) const;

    /// The fields of the page at a position as the shell shows them, where the first page was
    /// current before any other: what of a damaged record cannot be read is as it was there.
    coursedata::BoundRecord record(int position);

    /// The sheet of the page at a position. Every page starts anew: what the page before it left
    /// does not show. Warns of what of its source nobody sees.
    page::Sheet sheet(int position, const page::TextMetrics& metrics,
                      markup::PictureSource& pictures, Report& report);
    /// The same with all that comes of the drawing.
    DrawnCoursePage drawn(int position, const page::TextMetrics& metrics,
                          markup::PictureSource& pictures, Report& report);

    /// Where the source of the page at a position is.
    SourcePlace place(int position) const;

private:
    explicit CourseSheets(CourseRecords pages);

    CourseRecords pages_;
    shell::SharedState state_;
    std::vector<std::optional<int>> numbers_;
};

} // namespace coursetool
