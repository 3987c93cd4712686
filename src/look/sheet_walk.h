#pragma once

#include "platform/printer.h"

#include <QString>

#include <vector>

namespace look {

/// Leads through the sheets of what is about to be printed, one at a time, without a window. Only
/// the page that is looked at is laid out.
class SheetWalk {
public:
    /// Begins at the first sheet of the first choice. `proposal` must outlive the walk.
    SheetWalk(platform::PrintProposal& proposal, const platform::Paper& paper);

    int choice() const { return choice_; }
    /// Begins anew at its first sheet.
    void choose(int choice);
    /// The page looked at is laid out anew, and looked at from its first sheet.
    void setPaper(const platform::Paper& paper);

    const page::Sheet& sheet() const { return sheets_[sheet_]; }
    const platform::Paper& paper() const { return paper_; }

    bool hasNext() const;
    bool hasPrevious() const { return page_ > 0 || sheet_ > 0; }
    void next();
    void previous();

    /// Which sheet it is, in French: "Page 2 sur 5, feuille 1 sur 2".
    QString words() const;

private:
    void layOut(int page);

    platform::PrintProposal& proposal_;
    platform::Paper paper_;
    int choice_ = 0;
    int page_ = 0;
    std::vector<page::Sheet> sheets_; ///< of the page
    std::size_t sheet_ = 0;
};

} // namespace look
