#pragma once

#include "search/page_search.h"

#include <QAbstractListModel>

#include <vector>

namespace search {

/// The lines of `List2`: the titles of the pages found, each with the page's number as its data.
class FoundList : public QAbstractListModel {
public:
    void setPages(std::vector<FoundPage> pages);

    const FoundPage& page(const QModelIndex& line) const {
        return pages_[static_cast<std::size_t>(line.row())];
    }
    /// Fixed number of the page in a line; 0 when there is no such line.
    std::int32_t pageNumber(const QModelIndex& line) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& line, int role) const override;

private:
    std::vector<FoundPage> pages_;
};

} // namespace search
