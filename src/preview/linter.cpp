#include "preview/linter.h"

#include "check/read_course.h"
#include "check/silences.h"
#include "coursetool/paths.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <unordered_map>

namespace preview {

using coursetool::Report;

namespace {

/// As long as nobody notices that the window waits.
constexpr std::chrono::milliseconds kAtATime(8);

check::Course emptyCourse(const std::filesystem::path& sources) {
    check::Course course;
    course.root = sources;
    course.filesFolder = sources / coursetool::kFilesFolder;
    course.discFolder = sources / coursetool::kDiscFolder;
    course.pagesPlace = coursetool::shown(sources / coursetool::kPagesFolder);
    return course;
}

} // namespace

Linter::Linter(const std::filesystem::path& sources, const page::TextMetrics& metrics)
    : metrics_(metrics), course_(emptyCourse(sources)) {}

/// What the records have become; parts whose record is still there are taken over.
template <class Part>
void Linter::Parts<Part>::follow(const std::vector<SharedSource>& records,
                                 Part (*read)(const coursetool::ReadSource&, Report&)) {
    std::unordered_map<const coursetool::ReadSource*, std::size_t> known;
    for (std::size_t i = 0; i < looked.size(); ++i)
        known.emplace(looked[i].record.get(), i);
    std::vector<Looked> nowLooked;
    std::vector<Part> nowParts;
    for (const SharedSource& record : records) {
        if (const auto old = known.find(record.get()); old != known.end()) {
            nowLooked.push_back(std::move(looked[old->second]));
            nowParts.push_back(std::move(parts[old->second]));
            continue;
        }
        Report nobody; // a wrong order to be silent is no fault of a page
        nowLooked.push_back({record, {}, false});
        nowParts.push_back(read(*record, nobody));
    }
    looked = std::move(nowLooked);
    parts = std::move(nowParts);
}

void Linter::follow(const SourceRecords& records, bool filesChanged) {
    if (filesChanged || !checker_) {
        checker_.emplace(metrics_, course_.filesFolder,
                         coursetool::Drives{{'C', course_.discFolder}});
        pages_.looked.clear();
        questions_.looked.clear();
    }
    Report nobody;
    course_.ignored = check::ignoredInCourse(course_.root, nobody);
    pages_.follow(records.pages, &check::pageOf);
    questions_.follow(records.questions, &check::questionOf);
    course_.descriptions = {};
    course_.descriptions.read(course_.filesFolder, nobody);
    for (const auto* kind : {&records.pages, &records.questions})
        for (const SharedSource& record : *kind)
            course_.descriptions.take(record->descriptions, record->file, nobody);
    course_.tests.clear();
    for (const SharedSource& record : records.tests)
        course_.tests.push_back(check::testOf(*record, nobody));
    course_.indexPages();
    isConcluded_ = false;
}

template <class Part>
bool Linter::lookAtNext(Parts<Part>& parts) {
    const auto next = std::find_if(parts.looked.begin(), parts.looked.end(),
                                   [](const Looked& looked) { return !looked.isDone; });
    if (next == parts.looked.end())
        return false;
    const auto index = static_cast<std::size_t>(next - parts.looked.begin());
    next->findings = checker_->lookAt(parts.parts[index]);
    next->isDone = true;
    ++lookedAt_;
    return true;
}

bool Linter::lookOn() {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + kAtATime;
    while (Clock::now() < end)
        if (!lookAtNext(pages_) && !lookAtNext(questions_)) {
            if (!isConcluded_)
                conclude();
            return false;
        }
    return true;
}

void Linter::conclude() {
    isConcluded_ = true;
    findings_ = checker_->lookAtWhole(course_);
    for (const auto* all : {&pages_.looked, &questions_.looked})
        for (const Looked& looked : *all)
            std::copy(looked.findings.begin(), looked.findings.end(),
                      std::back_inserter(findings_));
    check::settle(course_, {}, findings_);
    std::erase_if(findings_, [](const check::Finding& finding) {
        return finding.rule->severity != check::Severity::Fault ||
               finding.rule->code == check::kReadingFault;
    });
}

} // namespace preview
