#include "coursetool/course_sheets.h"

#include "coursedata/page_index.h"
#include "markup/draw_page.h"
#include "text/rounding.h"
#include "viewer/page_code.h"
#include "viewer/page_sheet.h"

namespace coursetool {

std::optional<CourseSheets> CourseSheets::open(const std::filesystem::path& course,
                                               Report& report) {
    auto records = openRecords(course, kCourseFile, coursTable(), report);
    if (!records)
        return std::nullopt;
    return CourseSheets(*std::move(records));
}

CourseSheets::CourseSheets(CourseRecords pages) : pages_(std::move(pages)) {
    coursedata::buildPageIndex(*pages_.records, state_);
    numbers_.resize(static_cast<std::size_t>(pages_.records->recordCount()));
    pages_.records->forEach({QStringLiteral("Numeropage")},
                            [&](int position, std::span<const coursedata::FieldValue> fields) {
                                if (!std::holds_alternative<std::monostate>(fields[0]))
                                    numbers_.at(static_cast<std::size_t>(position)) =
                                        text::toInt32(coursedata::fieldNumber(fields[0]));
                            });
}

QString CourseSheets::title() const {
    pages_.records->setAbsolutePosition(0);
    return coursedata::shownText(pages_.records->field(QStringLiteral("titre"))).simplified();
}

std::optional<int> CourseSheets::number(int position) const {
    return numbers_.at(static_cast<std::size_t>(position));
}

int CourseSheets::positionShown(int number) const {
    return coursedata::positionOfCode(state_, number).value_or(0);
}

std::optional<int> CourseSheets::positionShown(const QString& tag) const {
    if (viewer::codePrefix(tag) != u"PAG")
        return std::nullopt;
    const auto number = text::toInt16(viewer::codeArgument(tag));
    const auto position = number ? coursedata::positionOfCode(state_, *number) : std::nullopt;
    return position && *position < count() ? position : std::nullopt;
}

coursedata::BoundRecord CourseSheets::record(int position) {
    coursedata::BoundRecord record;
    record.bindTo(*pages_.records);
    record.moveTo(position);
    return record;
}

SourcePlace CourseSheets::place(int position) const {
    const auto known = number(position);
    return {file(), known ? "page " + std::to_string(*known) : "page sans numéro"};
}

page::Sheet CourseSheets::sheet(int position, const page::TextMetrics& metrics,
                                markup::PictureSource& pictures, Report& report) {
    return drawn(position, metrics, pictures, report).sheet;
}

DrawnCoursePage CourseSheets::drawn(int position, const page::TextMetrics& metrics,
                                    markup::PictureSource& pictures, Report& report) {
    DrawnCoursePage drawn{record(position), {}, {}};
    const markup::PageText text{drawn.record.code, markup::DrawnAs::CoursePage,
                                drawn.record.Textitre};
    markup::DrawingState state;
    drawn.page = markup::drawPage(text, {state, pictures, metrics});
    reportLost(text, drawn.page, metrics, place(position), report);
    drawn.sheet = viewer::pageSheet(drawn.page, metrics);
    drawn.sheet.title = drawn.record.Textitre.simplified();
    drawn.sheet.number = number(position).value_or(0);
    return drawn;
}

} // namespace coursetool
