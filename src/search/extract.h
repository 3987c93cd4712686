#pragma once

#include "coursedata/recordset.h"
#include "page/faces/font_book.h"
#include "search/query.h"

#include <QString>

#include <memory>

namespace search {

/// What the window shows of a page that was found. The course's database is opened when the first
/// page is asked for.
class Extract {
public:
    /// `fonts` must outlive the extract.
    Extract(QString installDir, const page::FontBook& fonts)
        : installDir_(std::move(installDir)), fonts_(fonts) {}

    /// Passages of the page in the record at `position`, as rich text; empty when the record cannot
    /// be read.
    QString html(int position, const Query& query);

private:
    QString installDir_;
    const page::FontBook& fonts_;
    std::unique_ptr<coursedata::Recordset> cours_;
};

} // namespace search
