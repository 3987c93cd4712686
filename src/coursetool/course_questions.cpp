#include "coursetool/course_questions.h"

#include "coursedata/question_reference.h"
#include "markup/draw_page.h"
#include "page/numbers.h"
#include "text/rounding.h"
#include "viewer/page_code.h"
#include "viewer/page_sheet.h"

#include <algorithm>

namespace coursetool {

std::optional<CourseQuestions> CourseQuestions::open(const std::filesystem::path& course,
                                                     Report& report) {
    auto questions = openRecords(course, kExerciseFile, contenuTable(), report);
    if (!questions)
        return std::nullopt;
    // Without the list of tests, questions only go without the name of theirs.
    const auto tests = openRecords(course, kExerciseFile, descriptionTable(), report);
    return CourseQuestions(*std::move(questions), tests ? tests->records.get() : nullptr);
}

CourseQuestions::CourseQuestions(CourseRecords questions, const coursedata::Recordset* tests)
    : questions_(std::move(questions)) {
    using Fields = std::span<const coursedata::FieldValue>;
    references_.resize(static_cast<std::size_t>(questions_.records->recordCount()));
    questions_.records->forEach({QStringLiteral("REFERENCE")}, [&](int position, Fields fields) {
        if (!std::holds_alternative<std::monostate>(fields[0]))
            references_.at(static_cast<std::size_t>(position)) =
                text::toInt32(coursedata::fieldNumber(fields[0]));
    });
    if (tests)
        tests->forEach(
            {QStringLiteral("Chapitre"), QStringLiteral("Titre")}, [&](int, Fields fields) {
                // Of tests of the same chapter the last one counts.
                if (const auto chapter = text::toInt16(coursedata::fieldNumber(fields[0])))
                    testTitles_[*chapter] = coursedata::shownText(fields[1]);
            });
}

std::optional<int> CourseQuestions::reference(int position) const {
    return references_.at(static_cast<std::size_t>(position));
}

std::optional<int> CourseQuestions::position(int reference) const {
    const auto found = std::find(references_.begin(), references_.end(), reference);
    if (found == references_.end())
        return std::nullopt;
    return static_cast<int>(found - references_.begin());
}

QString CourseQuestions::source(int position) {
    questions_.records->setAbsolutePosition(position);
    return coursedata::shownText(questions_.records->field(QStringLiteral("question")));
}

SourcePlace CourseQuestions::place(int position) const {
    const auto known = reference(position);
    return {file(), known ? "question " + std::to_string(*known) : "question sans référence"};
}

page::Sheet CourseQuestions::sheet(int position, const page::TextMetrics& metrics,
                                   markup::PictureSource& pictures,
                                   const page::FieldPictures& fields, Report& report) {
    const markup::PageText text{source(position), markup::DrawnAs::Question};
    markup::DrawingState state;
    const markup::DrawnPage question = markup::drawPage(text, {state, pictures, metrics});
    reportLost(text, question, metrics, place(position), report);
    page::Sheet sheet = viewer::questionSheet(question, metrics, fields);
    sheet.title = title(position);
    for (page::LinkArea& link : sheet.links) {
        // The tag is a bare page number; the main window makes a page code of it.
        const auto page = text::toInt16(page::leadingNumber(link.tag));
        link.tag = page ? viewer::pageCode(*page) : QString();
    }
    return sheet;
}

QString CourseQuestions::title(int position) const {
    const auto number = reference(position);
    if (!number)
        return QStringLiteral("Question");
    const QString name =
        QStringLiteral("Question %1").arg(*number % coursedata::kReferencesPerChapter);
    const auto test = testTitles_.find(*number / coursedata::kReferencesPerChapter);
    const QString title = test == testTitles_.end() ? QString() : test->second.simplified();
    return title.isEmpty() ? name : title + QStringLiteral(" – ") + name;
}

} // namespace coursetool
