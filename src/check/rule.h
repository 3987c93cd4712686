#pragma once

#include "check/course.h"
#include "check/drawn_source.h"
#include "check/finding.h"

#include <span>
#include <string_view>
#include <variant>
#include <vector>

namespace check {

enum class Severity {
    Fault,   ///< a page is wrong: something does not show, or leads nowhere
    Warning, ///< a page is likely not what its author meant
    Advice,  ///< it could serve its readers better
};

class Findings;

// What a rule looks at: one line of a source, a source, what a source draws, or the whole course.
using LineCheck = void (*)(const Source& source, const Line& line, Findings& findings);
using SourceCheck = void (*)(const Source& source, Findings& findings);
using DrawnCheck = void (*)(const DrawnSource& drawn, Findings& findings);
using CourseCheck = void (*)(const Course& course, Findings& findings);

/// A row of the table of rules.
struct Rule {
    std::string_view code; ///< stays for ever: authors silence it by its code
    std::string_view name; ///< the same in words, for programs
    Severity severity;
    std::string_view title;       ///< a French phrase
    std::string_view explanation; ///< what happens, and what to do; French sentences
    std::variant<std::monostate, LineCheck, SourceCheck, DrawnCheck, CourseCheck> run = {};
};

/// All rules, by code.
std::span<const Rule> ruleTable();
/// The rule with this code; null for none.
const Rule* findRule(std::string_view code);

/// The rules under which the reading of a course tells what `build` says, too.
inline constexpr std::string_view kReadingFault = "A001";
inline constexpr std::string_view kReadingWarning = "A002";

/// What the rules have found. Each speaks in the name of the rule that is running.
class Findings {
public:
    void enter(const Rule& rule) { rule_ = &rule; }

    /// About a line of a source; `column` counts from 0.
    void add(const Source& source, int line, std::string sentence, qsizetype column = 0);
    /// The same, with the line as it should be.
    void add(const Source& source, const Line& line, std::string sentence, const QString& instead,
             bool safe);
    /// About a field, or a record as a whole.
    void add(const Record& record, std::string_view field, std::string sentence,
             std::optional<Edit> edit = {});
    /// About a file as a whole.
    void add(coursetool::Place place, std::string sentence);

    std::vector<Finding>& all() { return all_; }

private:
    const Rule* rule_ = nullptr;
    std::vector<Finding> all_;
};

/// "« mots »", shortened where a line is as long as a page.
std::string quoted(QStringView words);

} // namespace check
