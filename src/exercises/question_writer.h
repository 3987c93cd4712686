#pragma once

#include <QString>

#include <optional>

namespace exercises {

/// Writes what an author has typed over a question into the exercise database.
class QuestionWriter {
public:
    virtual ~QuestionWriter() = default;

    /// Gives the field "question" of a record of "Contenu" another text. `position` counts the
    /// records of the table from 0; line ends in `source` are CR LF. Nothing when it is written;
    /// otherwise a French sentence for the author that says why not, and the record is as it was.
    virtual std::optional<QString> write(int position, const QString& source) = 0;
};

} // namespace exercises
