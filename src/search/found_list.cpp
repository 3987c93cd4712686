#include "search/found_list.h"

#include <utility>

namespace search {

void FoundList::setPages(std::vector<FoundPage> pages) {
    beginResetModel();
    pages_ = std::move(pages);
    endResetModel();
}

std::int32_t FoundList::pageNumber(const QModelIndex& line) const {
    return line.isValid() ? pages_[static_cast<std::size_t>(line.row())].number : 0;
}

int FoundList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(pages_.size());
}

QVariant FoundList::data(const QModelIndex& line, int role) const {
    if (!line.isValid())
        return {};
    const FoundPage& page = pages_[static_cast<std::size_t>(line.row())];
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromStdU16String(page.title);
    case Qt::UserRole:
        return page.number;
    default:
        return {};
    }
}

} // namespace search
