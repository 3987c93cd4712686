#include "check/check.h"

#include "authoring/markdown_compiler.h"
#include "check/checker.h"
#include "check/fix.h"
#include "check/read_course.h"
#include "check/write_findings.h"
#include "coursetool/paths.h"

#include <algorithm>
#include <iterator>

namespace check {

using coursetool::ExitCode;

namespace {

using coursetool::Remark;

/// Rounds of mending: one may bring out what another finding hid.
constexpr int kMostRounds = 4;
/// Warnings of a build told one by one; `check` tells them all.
constexpr std::size_t kMostBuildWarnings = 20;

/// What reading the course has told.
void takeRemarks(const coursetool::Report& report, std::vector<Finding>& findings) {
    for (const Remark& remark : report.remarks())
        findings.push_back(
            {findRule(remark.kind == Remark::Kind::Warning ? kReadingWarning : kReadingFault),
             remark.place,
             {},
             remark.sentence});
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

std::vector<Finding> findingsOf(Course& course, const page::TextMetrics& metrics,
                                const coursetool::Drives& drives, const coursetool::Report& told) {
    Checker checker(metrics, course.filesFolder, drives);
    std::vector<Finding> all;
    const std::size_t count = course.pages.size() + course.questions.size();
    std::size_t done = 0;
    const auto take = [&](std::vector<Finding> found) {
        std::move(found.begin(), found.end(), std::back_inserter(all));
        told.progress("pages relues", ++done, count);
    };
    for (const Page& page : course.pages)
        take(checker.lookAt(page));
    for (const Question& question : course.questions)
        take(checker.lookAt(question));
    auto found = checker.lookAtWhole(course);
    std::move(found.begin(), found.end(), std::back_inserter(all));
    return all;
}

bool hasFault(const std::vector<Finding>& findings) {
    return std::any_of(findings.begin(), findings.end(), [](const Finding& finding) {
        return finding.rule->severity == Severity::Fault;
    });
}

std::vector<Finding> findingsIn(const CheckRequest& request, coursetool::SourceReader& reader,
                                const page::TextMetrics& metrics, const coursetool::Report& told) {
    coursetool::Report report;
    Course course = isInstalledCourse(request.course) ? readInstallation(request.course, report)
                                                      : readSources(request.course, reader, report);
    coursetool::Drives drives = request.drives;
    if (!course.isInstalled)
        drives.try_emplace('C', course.discFolder);
    std::vector<Finding> findings = findingsOf(course, metrics, drives, told);
    takeRemarks(report, findings);
    settle(course, request.ignored, findings);
    return findings;
}

} // namespace

std::vector<Finding> findingsIn(const CheckRequest& request, const page::TextMetrics& metrics,
                                const coursetool::Report& told) {
    const authoring::MarkdownCompiler compiler(metrics);
    coursetool::PlainSourceReader reader([&] { return &compiler; });
    return findingsIn(request, reader, metrics, told);
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

void warnOfWrongPages(const std::filesystem::path& source, coursetool::SourceReader& reader,
                      const page::TextMetrics& metrics, coursetool::Report& report) {
    CheckRequest request;
    request.course = source;
    std::vector<Finding> findings = findingsIn(request, reader, metrics, report);
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
