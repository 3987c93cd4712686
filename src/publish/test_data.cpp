#include "publish/test_data.h"

#include "exercises/field_texts.h"
#include "markup/draw_page.h"
#include "page/twips.h"
#include "publish/page_document.h"
#include "viewer/page_sheet.h"

#include <QJsonArray>

namespace publish {

namespace {

using page::FieldControl;
using page::FieldOperation;

/// Questions of a test that have a place in its state.
constexpr std::int16_t kMostQuestions = 100;

const char* nameOf(FieldControl control) {
    switch (control) {
    case FieldControl::Option1:
        return "option";
    case FieldControl::Check1:
        return "check";
    case FieldControl::Text1:
        return "text";
    case FieldControl::Labelien:
    case FieldControl::Image1:
    case FieldControl::Icovideo:
        break;
    }
    return "link";
}

/// What the browser has controls of its own for.
bool isAnswered(FieldControl control) {
    return control == FieldControl::Option1 || control == FieldControl::Check1 ||
           control == FieldControl::Text1;
}

/// The question without its answer controls, whose places stay.
markup::DrawnPage withoutControls(const markup::DrawnPage& question) {
    markup::DrawnPage bare = question;
    bare.recording.clear();
    for (const page::Operation& operation : question.recording.operations()) {
        const auto* field = std::get_if<FieldOperation>(&operation);
        if (!field || !isAnswered(field->control))
            bare.recording.add(operation);
    }
    return bare;
}

double pixels(double twips) {
    return twips / page::kTwipsPerPixel;
}

class QuestionWriter {
public:
    QuestionWriter(const QuestionTools& tools, const QString& idPrefix)
        : tools_(tools), idPrefix_(idPrefix) {}

    QJsonObject write(const QString& source, const QString& variant) const {
        markup::DrawingState state;
        const markup::DrawnPage question = markup::drawPage(
            {source, markup::DrawnAs::Question}, {state, tools_.pictures, tools_.metrics});
        const markup::DrawnPage bare = withoutControls(question);
        page::Sheet sheet = viewer::questionSheet(bare, tools_.metrics, tools_.fields);
        QJsonObject data;
        data.insert(QStringLiteral("dessin"),
                    tools_.drawings.write(sheet, idPrefix_ + variant, {}));
        data.insert(QStringLiteral("texte"), documentOf(bare, sheet, {page::SurfaceId::Picture2},
                                                        tools_.metrics, tools_.links));
        data.insert(QStringLiteral("champs"), fields(question, sheet));
        return data;
    }

private:
    /// Places are pixels of the drawing.
    QJsonArray fields(const markup::DrawnPage& question, const page::Sheet& sheet) const {
        const page::PlacedSurface& area = sheet.surfaces.front();
        QJsonArray all;
        for (const FieldOperation* field : page::standingFields(question.recording)) {
            const QString to =
                isAnswered(field->control) ? QString() : tools_.links.ofPageNumber(field->tag);
            if (!isAnswered(field->control) && to.isEmpty())
                continue;
            const double height = page::fieldHeight(*field, tools_.fields, tools_.metrics);
            QJsonObject data{{QStringLiteral("sorte"), QLatin1String(nameOf(field->control))},
                             {QStringLiteral("rang"), field->index},
                             {QStringLiteral("x"), pixels(area.x + field->x)},
                             {QStringLiteral("y"), pixels(area.y + field->y)},
                             {QStringLiteral("l"), pixels(field->width)},
                             {QStringLiteral("h"), pixels(height)},
                             {QStringLiteral("nom"), wordsOf(*field, question)}};
            if (!to.isEmpty())
                data.insert(QStringLiteral("vers"), to);
            if (isAnswered(field->control) && field->control != FieldControl::Text1)
                data.insert(
                    QStringLiteral("fin"),
                    pixels(
                        area.x +
                        exercises::textRightOf(*field, question.fields, question.recording).right));
            all.append(data);
        }
        return all;
    }

    static QString wordsOf(const FieldOperation& field, const markup::DrawnPage& question) {
        if (!isAnswered(field.control))
            return (field.caption.isEmpty() ? field.tooltip : field.caption).simplified();
        const auto text = field.control == FieldControl::Text1
                              ? exercises::textLeftOf(field, question.fields, question.recording)
                              : exercises::textRightOf(field, question.fields, question.recording);
        return text.text;
    }

    const QuestionTools& tools_;
    QString idPrefix_;
};

} // namespace

std::optional<QJsonObject> testData(exercises::DatabaseRecords& records, std::int16_t chapter,
                                    const QuestionTools& tools) {
    const exercises::TestDescription found = records.describe(chapter);
    if (!found.count || *found.count < 1)
        return std::nullopt;
    QJsonArray questions;
    for (std::int16_t number = 1; number <= std::min(*found.count, kMostQuestions); ++number) {
        records.moveTo(chapter, number);
        const QuestionWriter writer(tools, QStringLiteral("t%1q%2").arg(chapter).arg(number));
        const QString source = QString::fromStdU16String(records.question());
        const auto solution = records.solution();
        questions.append(QJsonObject{
            {QStringLiteral("type"), records.type()},
            {QStringLiteral("solution"),
             solution ? QJsonValue(QString::fromStdU16String(*solution)) : QJsonValue()},
            {QStringLiteral("seule"), writer.write(source, QStringLiteral("-"))},
            {QStringLiteral("commentaire"),
             writer.write(source + QString::fromStdU16String(records.siFaux()),
                          QStringLiteral("c-"))}});
    }
    return QJsonObject{
        {QStringLiteral("chapitre"), chapter},
        {QStringLiteral("titre"), QString::fromStdU16String(found.title.value_or(u""))},
        {QStringLiteral("nombre"), *found.count},
        {QStringLiteral("questions"), questions}};
}

} // namespace publish
