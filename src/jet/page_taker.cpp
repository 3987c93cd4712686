#include "jet/page_taker.h"

#include "jet/data_page.h"
#include "jet/usage_map.h"

#include <algorithm>
#include <functional>

namespace jet {

Result<std::uint32_t> PageTaker::take() {
    list();
    if (!available_.empty()) {
        taken_.push_back(available_.back());
        available_.pop_back();
        return taken_.back();
    }
    const auto added = addPage();
    if (!added)
        return Failure{Failure::Kind::Refused,
                       "le fichier dépasserait la taille permise à une base de données"};
    return *added;
}

/// Pages that are passed over stay without content, so that what names them stays damaged.
std::optional<std::uint32_t> PageTaker::addPage() {
    for (;;) {
        const auto added = changes_->add();
        if (added)
            taken_.push_back(*added);
        if (!added || !named_->isNamed(*added))
            return added;
    }
}

void PageTaker::list() {
    if (named_)
        return;
    PageSource& source = changes_->source();
    named_.emplace(source);
    available_ = named_->lostPages();
    const auto free = pagesInMap(source, kGlobalMap, kGlobalMapOwner);
    for (const std::uint32_t number : free.value_or(std::vector<std::uint32_t>())) {
        const auto page = source.page(number);
        const auto data =
            page ? DataPage::of(*page, kLongValueOwner, source.format()) : std::nullopt;
        if (data && data->isSound() && data->slotCount() == 0 && !named_->isNamed(number))
            available_.push_back(number);
    }
    std::sort(available_.begin(), available_.end(), std::greater<>());
    available_.erase(std::unique(available_.begin(), available_.end()), available_.end());
}

} // namespace jet
