#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace exercises {

/// What the database says of a chapter's test; absent what it does not say.
struct TestDescription {
    std::optional<std::u16string> title;
    std::optional<std::int16_t> count; ///< of questions, as it stands
};

/// The exercise database as the session of a test reads it, one question current. A database that
/// is not there has no descriptions, and questions without anything.
class TestRecords {
public:
    virtual ~TestRecords() = default;

    virtual TestDescription describe(std::int16_t chapter) const = 0;

    /// Makes a question current; one that does not exist makes it the last record there is.
    virtual void moveTo(std::int16_t chapter, std::int16_t question) = 0;

    // The current question.
    virtual int type() const = 0; ///< 1 check boxes, 2 option buttons, 3 typed answer; 0 none
    virtual std::optional<std::u16string> solution() const = 0; ///< absent for NULL
    virtual std::u16string question() const = 0;                ///< page source
    virtual std::u16string siFaux() const = 0; ///< page source of the comment on a wrong answer
};

} // namespace exercises
