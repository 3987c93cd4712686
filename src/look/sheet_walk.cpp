#include "look/sheet_walk.h"

namespace look {

SheetWalk::SheetWalk(platform::PrintProposal& proposal, const platform::Paper& paper)
    : proposal_(proposal), paper_(paper) {
    layOut(0);
}

void SheetWalk::layOut(int page) {
    page_ = page;
    sheets_ = proposal_.sheets(choice_, page, paper_);
    sheet_ = 0;
}

void SheetWalk::choose(int choice) {
    choice_ = choice;
    layOut(0);
}

void SheetWalk::setPaper(const platform::Paper& paper) {
    paper_ = paper;
    layOut(page_);
}

bool SheetWalk::hasNext() const {
    return sheet_ + 1 < sheets_.size() || page_ + 1 < proposal_.pageCount(choice_);
}

void SheetWalk::next() {
    if (sheet_ + 1 < sheets_.size())
        ++sheet_;
    else if (hasNext())
        layOut(page_ + 1);
}

void SheetWalk::previous() {
    if (sheet_ > 0) {
        --sheet_;
    } else if (page_ > 0) {
        layOut(page_ - 1);
        sheet_ = sheets_.size() - 1;
    }
}

QString SheetWalk::words() const {
    QString words =
        QStringLiteral("Page %1 sur %2").arg(page_ + 1).arg(proposal_.pageCount(choice_));
    if (sheets_.size() > 1)
        words += QStringLiteral(", feuille %1 sur %2").arg(sheet_ + 1).arg(sheets_.size());
    return words;
}

} // namespace look
