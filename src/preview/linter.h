#pragma once

#include "check/checker.h"
#include "preview/source_records.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace preview {

/// What the rules of `check` find in a course that is being written, without keeping its author
/// waiting: a page that has not changed is not looked at again, and many are looked at a few at a
/// time.
class Linter {
public:
    /// `metrics` must outlive it.
    Linter(const std::filesystem::path& sources, const page::TextMetrics& metrics);

    /// The course as it is now. When its files have changed all pages are looked at anew, since
    /// their pictures may have come, gone or grown.
    void follow(const SourceRecords& records, bool filesChanged);

    /// Looks on for some milliseconds. False when all has been looked at.
    bool lookOn();

    /// What makes pages wrong in the course as it was when all had been looked at last, but for
    /// what a build refuses.
    const std::vector<check::Finding>& findings() const { return findings_; }

    /// How many pages and questions it has looked at so far.
    int lookedAt() const { return lookedAt_; }

private:
    /// A page or question, or the record of a test, with what was found in it.
    struct Looked {
        SharedSource record;
        std::vector<check::Finding> findings;
        bool isDone = false;
    };
    template <class Part>
    struct Parts {
        std::vector<Looked> looked; ///< in the order of the parts, which stand in the course
        std::vector<Part>& parts;
        void follow(const std::vector<SharedSource>& records,
                    Part (*read)(const coursetool::ReadSource&, coursetool::Report&));
    };
    template <class Part>
    bool lookAtNext(Parts<Part>& parts);
    void conclude();

    const page::TextMetrics& metrics_;
    check::Course course_;
    std::optional<check::Checker> checker_;
    Parts<check::Page> pages_{{}, course_.pages};
    Parts<check::Question> questions_{{}, course_.questions};
    std::vector<check::Finding> findings_;
    bool isConcluded_ = true;
    int lookedAt_ = 0;
};

} // namespace preview
