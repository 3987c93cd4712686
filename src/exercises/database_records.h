#pragma once

#include "coursedata/exercise_tables.h"
#include "exercises/test_records.h"

namespace exercises {

/// The records of a test from the exercise database.
class DatabaseRecords : public TestRecords {
public:
    /// Reads from `tables`, also when a question is current already: another one is then to be made
    /// current anew.
    void read(coursedata::ExerciseTables tables);

    /// The current question, for authors.
    coursedata::QuestionRecord& record() { return record_; }

    // TestRecords
    TestDescription describe(std::int16_t chapter) const override;
    void moveTo(std::int16_t chapter, std::int16_t question) override;
    int type() const override;
    std::optional<std::u16string> solution() const override;
    std::u16string question() const override;
    std::u16string siFaux() const override;

private:
    coursedata::ExerciseTables tables_;
    coursedata::QuestionRecord record_{nullptr};
};

} // namespace exercises
