#pragma once

#include "coursetool/course_sources.h"

#include <memory>
#include <vector>

namespace preview {

using SharedSource = std::shared_ptr<const coursetool::ReadSource>;

/// The records of a course, those of each kind in their order. Where a memory has read them, a
/// source that stays as it was gives the very same record: two courses are compared in no time.
struct SourceRecords : coursetool::RecordSink {
    std::vector<SharedSource> pages;
    std::vector<SharedSource> tests;
    std::vector<SharedSource> questions;

    void take(coursetool::SourceKind kind, const SharedSource& record) override {
        using coursetool::SourceKind;
        (kind == SourceKind::Page   ? pages
         : kind == SourceKind::Test ? tests
                                    : questions)
            .push_back(record);
    }
    bool operator==(const SourceRecords& other) const {
        return pages == other.pages && tests == other.tests && questions == other.questions;
    }
};

} // namespace preview
