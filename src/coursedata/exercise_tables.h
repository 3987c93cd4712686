#pragma once

#include "coursedata/jet_recordset.h"
#include "coursedata/recordset.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <optional>

namespace coursedata {

/// The two tables of the exercise database; null for one that could not be opened.
struct ExerciseTables {
    std::unique_ptr<Recordset> description; ///< "DESCRIPTION": one record a test
    std::unique_ptr<Recordset> contenu;     ///< "Contenu": one record a question
    QStringList failures; ///< what could not be opened, and why; a sentence each, not for pupils
};

/// Opens both tables of the course in `installDirectory`. Opened Writable, `contenu` takes the
/// changes of authors.
ExerciseTables openExerciseTables(const QString& installDirectory,
                                  Access access = Access::ReadOnly);

/// What "DESCRIPTION" says of a chapter; absent what it does not say.
struct TestDescription {
    std::optional<QString> title;      ///< "Titre"
    std::optional<std::int16_t> count; ///< "Nbquest", as it stands
};

/// The description of a chapter's test. Of several records the last one that says it counts; empty
/// when there is no record.
TestDescription describeTest(const Recordset& description, std::int16_t chapter);

/// What tells a question: chapter times 100 plus question number. A question above 100 has the
/// number of one of the following chapter, and shows that one.
std::int32_t questionReference(std::int16_t chapter, std::int16_t question);

/// The current record of "Contenu".
class QuestionRecord {
public:
    /// `contenu` may be null, a table without records; it must outlive this.
    explicit QuestionRecord(Recordset* contenu) : contenu_(contenu) {}

    /// Makes the first record with this "REFERENCE" current; the last of the table when none has.
    void moveTo(std::int32_t reference);

    int type() const; ///< 1 check boxes, 2 option buttons, 3 typed answer; 0 when there is none
    std::optional<QString> solution() const; ///< absent for NULL
    QString question() const;                ///< page source; empty for NULL
    /// Gives the field "question" another text in the database. Nothing when that is done;
    /// otherwise why not, in French and without a final full stop, and the stored record is as it
    /// was.
    std::optional<QString> setQuestion(const QString& source);
    QString siFaux() const; ///< page source of the comment; empty for NULL

private:
    std::optional<FieldValue> field(const QString& name) const;

    Recordset* contenu_;
};

} // namespace coursedata
