#pragma once

#include "coursetool/course_records.h"
#include "coursetool/lost_text.h"
#include "markup/picture_source.h"
#include "page/sheet.h"
#include "page/text_metrics.h"

#include <map>
#include <optional>
#include <vector>

namespace coursetool {

/// The questions of an installed course's tests, in record order, drawn as the test window shows
/// them before they are answered.
class CourseQuestions {
public:
    /// A fault, and nothing, when the course has no tests.
    static std::optional<CourseQuestions> open(const std::filesystem::path& course, Report& report);

    int count() const { return static_cast<int>(references_.size()); }
    const std::string& file() const { return questions_.file; }

    /// Reference of the question at a position: chapter number x 100 + number of the question.
    /// Nothing for a record that has none.
    std::optional<int> reference(int position) const;

    /// Position of the first question with this reference, where the test window finds it.
    std::optional<int> position(int reference) const;

    /// The source of the question at a position.
    QString source(int position);

    /// The sheet of the question at a position; the tags of its links are page codes. Warns of
    /// what of its source nobody sees.
    page::Sheet sheet(int position, const page::TextMetrics& metrics,
                      markup::PictureSource& pictures, const page::FieldPictures& fields,
                      Report& report);

    /// Where the source of the question at a position is.
    SourcePlace place(int position) const;

private:
    CourseQuestions(CourseRecords questions, const coursedata::Recordset* tests);

    QString title(int position) const;

    CourseRecords questions_;
    std::vector<std::optional<int>> references_;
    std::map<int, QString> testTitles_; ///< by chapter
};

} // namespace coursetool
