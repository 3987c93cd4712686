#include "check/checker.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <variant>

namespace check {

std::vector<Finding> Checker::lookAt(const Page& page) {
    Findings findings;
    lookAtLines(page.source, findings);
    lookAtDrawing(page.source, nullptr, findings);
    return std::move(findings.all());
}

std::vector<Finding> Checker::lookAt(const Question& question) {
    Findings findings;
    lookAtLines(question.source, findings);
    lookAtLines(question.comment, findings);
    lookAtDrawing(question.source, &question.comment, findings);
    return std::move(findings.all());
}

std::vector<Finding> Checker::lookAtWhole(Course& course) {
    course.metrics = &metrics_;
    course.pictures = &pictures_;
    Findings findings;
    for (const Rule& rule : ruleTable())
        if (const auto* run = std::get_if<CourseCheck>(&rule.run)) {
            findings.enter(rule);
            (*run)(course, findings);
        }
    return std::move(findings.all());
}

void Checker::lookAtLines(const Source& source, Findings& findings) const {
    for (const Rule& rule : ruleTable()) {
        findings.enter(rule);
        if (const auto* run = std::get_if<LineCheck>(&rule.run))
            for (const Line& line : source.lines())
                (*run)(source, line, findings);
        else if (const auto* whole = std::get_if<SourceCheck>(&rule.run))
            (*whole)(source, findings);
    }
}

void Checker::lookAtDrawing(const Source& source, const Source* comment, Findings& findings) {
    const DrawnSource drawn(source, comment, metrics_, pictures_);
    for (const Rule& rule : ruleTable())
        if (const auto* run = std::get_if<DrawnCheck>(&rule.run)) {
            findings.enter(rule);
            (*run)(drawn, findings);
        }
}

namespace {

/// The place of each record in its course, so that "page 9" comes before "page 10".
std::map<std::string, std::size_t> ranksOf(const Course& course) {
    std::map<std::string, std::size_t> ranks;
    const auto take = [&](const std::string& name) { ranks.emplace(name, ranks.size()); };
    for (const Page& page : course.pages)
        take(page.record.name());
    for (const Record& test : course.tests)
        take(test.name());
    for (const Question& question : course.questions) {
        take(question.record.name());
        take(question.comment.record());
    }
    return ranks;
}

void sortByPlace(const Course& course, std::vector<Finding>& findings) {
    const auto ranks = ranksOf(course);
    const auto key = [&](const Finding& finding) {
        const auto rank = ranks.find(finding.record);
        return std::tuple(std::string_view(finding.place.file),
                          rank == ranks.end() ? 0 : rank->second, finding.place.line,
                          finding.place.column, finding.rule->code);
    };
    std::stable_sort(findings.begin(), findings.end(),
                     [&](const Finding& a, const Finding& b) { return key(a) < key(b); });
}

/// Codes silenced by the file that a finding is about.
std::map<std::pair<std::string, std::string>, const std::set<std::string>*>
silencesOf(const Course& course) {
    std::map<std::pair<std::string, std::string>, const std::set<std::string>*> all;
    const auto take = [&](const Record& record) {
        if (!record.ignored.empty())
            all[{record.place().file, record.name()}] = &record.ignored;
    };
    for (const Page& page : course.pages)
        take(page.record);
    for (const Record& test : course.tests)
        take(test);
    for (const Question& question : course.questions)
        take(question.record);
    return all;
}

void dropSilenced(const Course& course, const std::set<std::string>& ignored,
                  std::vector<Finding>& findings) {
    const auto silences = silencesOf(course);
    std::erase_if(findings, [&](const Finding& finding) {
        const std::string code(finding.rule->code);
        const auto own = silences.find({finding.place.file, finding.record});
        return ignored.contains(code) || course.ignored.contains(code) ||
               (own != silences.end() && own->second->contains(code));
    });
}

/// The rule that only repeats what the renderer says.
constexpr std::string_view kAbandoned = "directive-abandonnee";

/// A statement that was abandoned says less than the rule that knows why.
void dropExplained(std::vector<Finding>& findings) {
    const auto placeOf = [](const Finding& finding) {
        return std::tuple(finding.place.file, finding.record, finding.place.line);
    };
    std::set<std::tuple<std::string, std::string, int>> explained;
    for (const Finding& finding : findings)
        if (finding.rule->name != kAbandoned)
            explained.insert(placeOf(finding));
    std::erase_if(findings, [&](const Finding& finding) {
        return finding.rule->name == kAbandoned && explained.contains(placeOf(finding));
    });
}

} // namespace

void settle(const Course& course, const std::set<std::string>& ignored,
            std::vector<Finding>& findings) {
    dropSilenced(course, ignored, findings);
    dropExplained(findings);
    sortByPlace(course, findings);
}

} // namespace check
