#include "coursetool/render.h"

#include "coursetool/course_questions.h"
#include "coursetool/course_sheets.h"
#include "coursetool/lost_text.h"
#include "coursetool/page_source.h"
#include "coursetool/paths.h"
#include "coursetool/sheet_files.h"
#include "markup/draw_page.h"
#include "viewer/page_sheet.h"

#include <QHash>

namespace coursetool {

namespace {

/// Names for the files of numbered things, each given once.
class FileNames {
public:
    QString next(const char* kind, std::optional<int> number) {
        const QString name =
            number
                ? QStringLiteral("%1-%2").arg(QLatin1String(kind)).arg(*number, 3, 10, QChar(u'0'))
                : QStringLiteral("%1-sans-numero").arg(QLatin1String(kind));
        const int times = ++given_[name];
        return times == 1 ? name : QStringLiteral("%1-%2").arg(name).arg(times);
    }

private:
    QHash<QString, int> given_;
};

class Renderer {
public:
    Renderer(const RenderRequest& request, const page::FontBook& fonts,
             markup::PictureSource& pictures, const page::FieldPictures& fields, Report& report)
        : request_(request), fonts_(fonts), pictures_(pictures), fields_(fields), report_(report) {}

    void renderPage(int number) {
        auto pages = CourseSheets::open(request_.course, report_);
        if (!pages)
            return;
        const int position = pages->positionShown(number);
        if (position >= pages->count() || pages->number(position) != number) {
            report_.fault({pages->file()},
                          "aucune page ne porte le numéro " + std::to_string(number));
            return;
        }
        writeOne(pages->sheet(position, fonts_, pictures_, report_));
    }

    void renderQuestion(int reference) {
        auto questions = CourseQuestions::open(request_.course, report_);
        if (!questions)
            return;
        const auto position = questions->position(reference);
        if (!position) {
            report_.fault({questions->file()},
                          "aucune question ne porte la référence " + std::to_string(reference));
            return;
        }
        writeOne(questions->sheet(*position, fonts_, pictures_, fields_, report_));
    }

    void renderAll() {
        auto pages = CourseSheets::open(request_.course, report_);
        if (!pages)
            return;
        FileNames names;
        QStringList pageNames;
        for (int position = 0; position < pages->count(); ++position)
            pageNames.append(names.next("page", pages->number(position)));
        const auto files = openSheetFiles(request_, fonts_, asOne(*pages, pageNames), report_);
        if (!files)
            return;
        for (int position = 0; position < pages->count(); ++position) {
            if (!files->add(pages->sheet(position, fonts_, pictures_, report_),
                            pageNames[position]))
                return;
            tellProgress("pages dessinées", position, pages->count());
        }
        if (!addQuestions(names, *files))
            return;
        files->finish();
    }

    void renderSource() {
        const auto source = readPageSource(request_.source, request_.compiler, report_);
        if (!source)
            return;
        markup::DrawingState state;
        const markup::DrawnPage page = markup::drawPage(source->text, {state, pictures_, fonts_});
        reportLost(source->text, page, fonts_, {shown(request_.source), {}, source->fileLines},
                   report_);
        if (report_.hasFaults())
            return;
        writeOne(source->text.as == markup::DrawnAs::Question
                     ? viewer::questionSheet(page, fonts_, fields_)
                     : viewer::bareSheet(page, fonts_));
    }

private:
    /// Refers to both, which outlive the files.
    static SheetSet asOne(const CourseSheets& pages, const QStringList& names) {
        return {pages.title(),
                [&](const QString& tag) {
                    const auto position = pages.positionShown(tag);
                    return position ? names[*position] : QString();
                },
                [&](const QString& tag) {
                    const auto position = pages.positionShown(tag);
                    return position ? pages.number(*position) : std::nullopt;
                }};
    }

    bool addQuestions(FileNames& names, SheetFiles& files) {
        if (!coursedata::findDatabase(request_.course, kExerciseFile))
            return true; // a course need not have tests
        auto questions = CourseQuestions::open(request_.course, report_);
        for (int position = 0; questions && position < questions->count(); ++position) {
            if (!files.add(questions->sheet(position, fonts_, pictures_, fields_, report_),
                           names.next("question", questions->reference(position))))
                return false;
            tellProgress("questions dessinées", position, questions->count());
        }
        return true;
    }

    void tellProgress(const char* what, int position, int count) const {
        report_.progress(what, static_cast<std::size_t>(position) + 1,
                         static_cast<std::size_t>(count));
    }

    /// A single sheet has nowhere to lead to.
    void writeOne(const page::Sheet& sheet) {
        const SheetSet alone{sheet.title, [](const QString&) { return QString(); },
                             [](const QString&) { return std::optional<int>(); }};
        const auto files = openSheetFiles(request_, fonts_, alone, report_);
        if (files && files->add(sheet, {}))
            files->finish();
    }

    const RenderRequest& request_;
    const page::FontBook& fonts_;
    markup::PictureSource& pictures_;
    const page::FieldPictures& fields_;
    Report& report_;
};

} // namespace

void render(const RenderRequest& request, const page::FontBook& fonts,
            markup::PictureSource& pictures, const page::FieldPictures& fields, Report& report) {
    Renderer renderer(request, fonts, pictures, fields, report);
    if (!request.source.empty())
        renderer.renderSource();
    else if (request.page)
        renderer.renderPage(*request.page);
    else if (request.question)
        renderer.renderQuestion(*request.question);
    else
        renderer.renderAll();
}

} // namespace coursetool
