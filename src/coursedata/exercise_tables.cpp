#include "coursedata/exercise_tables.h"

#include "coursedata/course_directory.h"
#include "coursedata/databases.h"
#include "coursedata/question_reference.h"
#include "text/rounding.h"

namespace coursedata {

namespace {

bool isNull(const std::optional<FieldValue>& value) {
    return !value || std::holds_alternative<std::monostate>(*value);
}

/// A field stored into a 16-bit number; nothing for NULL and for what does not fit.
std::optional<std::int16_t> int16Of(const std::optional<FieldValue>& value) {
    return isNull(value) ? std::nullopt : text::toInt16(fieldNumber(value));
}

bool equals(const FieldValue& value, std::int32_t number) {
    return !isNull(value) && fieldNumber(value) == number;
}

std::unique_ptr<Recordset> open(const QString& path, const QString& table, Access access,
                                QStringList& failures) {
    auto opened = openRecordset(path, table, access);
    if (opened)
        return std::move(*opened);
    failures += QString::fromStdString(opened.error().sentence);
    return nullptr;
}

} // namespace

ExerciseTables openExerciseTables(const QString& installDirectory, Access access) {
    ExerciseTables tables;
    const auto path = findExerciseDatabase(installDirectory);
    if (!path) {
        tables.failures +=
            QString::fromLatin1(kExerciseFile) +
            QStringLiteral("\u00A0: absente du dossier du cours, il n’y aura pas de test");
        return tables;
    }
    tables.description = open(*path, QStringLiteral("DESCRIPTION"), access, tables.failures);
    tables.contenu = open(*path, QStringLiteral("Contenu"), access, tables.failures);
    return tables;
}

TestDescription describeTest(const Recordset& description, std::int16_t chapter) {
    TestDescription found;
    description.forEach(
        {QStringLiteral("Chapitre"), QStringLiteral("Titre"), QStringLiteral("Nbquest")},
        [&](int, std::span<const FieldValue> fields) {
            if (!equals(fields[0], chapter))
                return;
            if (!isNull(fields[1]))
                found.title = shownText(fields[1]);
            if (const auto count = int16Of(fields[2]))
                found.count = count;
        });
    return found;
}

std::int32_t questionReference(std::int16_t chapter, std::int16_t question) {
    return chapter * kReferencesPerChapter + question;
}

void QuestionRecord::moveTo(std::int32_t reference) {
    if (!contenu_)
        return;
    std::optional<int> first;
    int last = -1;
    contenu_->forEach({QStringLiteral("REFERENCE")},
                      [&](int position, std::span<const FieldValue> fields) {
                          if (!first && equals(fields[0], reference))
                              first = position;
                          last = position;
                      });
    contenu_->setAbsolutePosition(first.value_or(last));
}

std::optional<FieldValue> QuestionRecord::field(const QString& name) const {
    return contenu_ ? contenu_->field(name) : std::nullopt;
}

int QuestionRecord::type() const {
    return int16Of(field(QStringLiteral("type"))).value_or(0);
}

std::optional<QString> QuestionRecord::solution() const {
    const auto value = field(QStringLiteral("solution"));
    return isNull(value) ? std::nullopt : std::optional(shownText(value));
}

QString QuestionRecord::question() const {
    return shownText(field(QStringLiteral("question")));
}

std::optional<QString> QuestionRecord::setQuestion(const QString& source) {
    if (!contenu_)
        return QStringLiteral("il n’y a pas de base d’exercices");
    return contenu_->setField(QStringLiteral("question"), source);
}

QString QuestionRecord::siFaux() const {
    return shownText(field(QStringLiteral("SiFaux")));
}

} // namespace coursedata
