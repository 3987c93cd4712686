#include "check/check.h"

#include "check/check_pictures.h"
#include "check/fix.h"
#include "check/read_course.h"
#include "check/write_findings.h"
#include "coursetool/paths.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace check {

using coursetool::ExitCode;

namespace {

using coursetool::Remark;

/// Rounds of mending: one may bring out what another finding hid.
constexpr int kMostRounds = 4;
/// Warnings of a build told one by one; `check` tells them all.
constexpr std::size_t kMostBuildWarnings = 20;

class Checker {
public:
    Checker(Course& course, const page::TextMetrics& metrics, const coursetool::Drives& drives,
            const coursetool::Report& told)
        : course_(course), told_(told), pictures_(course.filesFolder, drives) {
        course_.metrics = &metrics;
        course_.pictures = &pictures_;
    }

    std::vector<Finding> run() {
        for (const Page& page : course_.pages)
            draw(page.source, nullptr);
        for (const Question& question : course_.questions)
            draw(question.source, &question.comment);
        for (const Rule& rule : ruleTable()) {
            findings_.enter(rule);
            if (const auto* line = std::get_if<LineCheck>(&rule.run))
                forEachSource([&](const Source& source) {
                    for (const Line& each : source.lines())
                        (*line)(source, each, findings_);
                });
            else if (const auto* whole = std::get_if<SourceCheck>(&rule.run))
                forEachSource([&](const Source& source) { (*whole)(source, findings_); });
            else if (const auto* all = std::get_if<CourseCheck>(&rule.run))
                (*all)(course_, findings_);
        }
        return std::move(findings_.all());
    }

private:
    void draw(const Source& source, const Source* comment) {
        const DrawnSource drawn(source, comment, *course_.metrics, pictures_);
        for (const Rule& rule : ruleTable())
            if (const auto* run = std::get_if<DrawnCheck>(&rule.run)) {
                findings_.enter(rule);
                (*run)(drawn, findings_);
            }
        told_.progress("pages relues", ++drawn_, course_.pages.size() + course_.questions.size());
    }

    template <class Visit>
    void forEachSource(Visit visit) const {
        for (const Page& page : course_.pages)
            visit(page.source);
        for (const Question& question : course_.questions) {
            visit(question.source);
            visit(question.comment);
        }
    }

    Course& course_;
    const coursetool::Report& told_;
    std::size_t drawn_ = 0;
    CheckPictures pictures_;
    Findings findings_;
};

/// What reading the course has told.
void takeRemarks(const coursetool::Report& report, std::vector<Finding>& findings) {
    for (const Remark& remark : report.remarks())
        findings.push_back(
            {findRule(remark.kind == Remark::Kind::Warning ? kReadingWarning : kReadingFault),
             remark.place,
             {},
             remark.sentence});
}

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

ExitCode explain(const std::string& code, coursetool::OutputBuffer& out,
                 coursetool::Report& report) {
    const Rule* rule = findRule(code);
    if (code == kAllRules)
        out.text() += listOfRules();
    else if (rule)
        out.text() += explanationOf(*rule);
    else {
        report.fault({code}, "aucune règle ne porte ce code : « --explain toutes » en donne la "
                             "liste");
        return ExitCode::WrongCall;
    }
    if (!out.flush())
        report.outputFailure(out.error());
    return ExitCode::Fine;
}

bool hasFault(const std::vector<Finding>& findings) {
    return std::any_of(findings.begin(), findings.end(), [](const Finding& finding) {
        return finding.rule->severity == Severity::Fault;
    });
}

} // namespace

std::vector<Finding> findingsIn(const CheckRequest& request, const page::TextMetrics& metrics,
                                const coursetool::Report& told) {
    coursetool::Report report;
    Course course = isInstalledCourse(request.course)
                        ? readInstallation(request.course, report)
                        : readSources(request.course, metrics, report);
    coursetool::Drives drives = request.drives;
    if (!course.isInstalled)
        drives.try_emplace('C', course.discFolder);
    std::vector<Finding> findings = Checker(course, metrics, drives, told).run();
    takeRemarks(report, findings);
    dropSilenced(course, request.ignored, findings);
    dropExplained(findings);
    sortByPlace(course, findings);
    return findings;
}

namespace {

/// Gives how many lines it changed; `findings` are those that are left.
std::size_t mend(const CheckRequest& request, const page::TextMetrics& metrics,
                 std::vector<Finding>& findings, coursetool::Report& report) {
    std::size_t all = 0;
    for (int round = 0; round < kMostRounds; ++round) {
        const std::size_t mended = applySafe(findings, request.course, report);
        if (mended == 0)
            break;
        all += mended;
        findings = findingsIn(request, metrics, report);
    }
    return all;
}

void tellMended(std::size_t lines, CheckFormat format, coursetool::OutputBuffer& out) {
    if (lines > 0 && format == CheckFormat::Text)
        out.text() +=
            std::to_string(lines) + (lines == 1 ? " ligne corrigée\n" : " lignes corrigées\n");
}

} // namespace

ExitCode check(const CheckRequest& request, const page::TextMetrics& metrics,
               coursetool::OutputBuffer& out, coursetool::Report& report) {
    if (!request.explained.empty())
        return explain(request.explained, out, report);
    if (request.fix && isInstalledCourse(request.course)) {
        report.fault({coursetool::shown(request.course)},
                     "« --fix » corrige des sources, et ceci est un cours installé");
        return ExitCode::WrongCall;
    }
    std::vector<Finding> findings = findingsIn(request, metrics, report);
    if (request.fix)
        tellMended(mend(request, metrics, findings, report), request.format, out);
    writeFindings(findings, request.format, out);
    if (!out.flush())
        report.outputFailure(out.error());
    return hasFault(findings) ? ExitCode::Faults : ExitCode::Fine;
}

void warnOfWrongPages(const std::filesystem::path& source, const page::TextMetrics& metrics,
                      coursetool::Report& report) {
    CheckRequest request;
    request.course = source;
    std::vector<Finding> findings = findingsIn(request, metrics, report);
    std::erase_if(findings, [](const Finding& finding) {
        return finding.rule->severity != Severity::Fault || finding.rule->code == kReadingFault;
    });
    for (std::size_t i = 0; i < std::min(findings.size(), kMostBuildWarnings); ++i)
        report.warning(findings[i].place, withCode(findings[i]));
    if (findings.size() > kMostBuildWarnings)
        report.warning({coursetool::shown(source)},
                       "et " + std::to_string(findings.size() - kMostBuildWarnings) +
                           " autres : « orvalente-cours check » les dit toutes");
}

} // namespace check
