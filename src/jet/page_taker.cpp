#include "jet/page_taker.h"

#include "jet/data_page.h"
#include "jet/usage_map.h"

#include <utility>

namespace jet {

Result<std::uint32_t> PageTaker::take() {
    listEmptied();
    if (!emptied_.empty()) {
        taken_.push_back(emptied_.back());
        emptied_.pop_back();
        return taken_.back();
    }
    const auto added = changes_->add();
    if (!added)
        return Failure{Failure::Kind::Refused,
                       "le fichier dépasserait la taille permise à une base de données"};
    taken_.push_back(*added);
    return *added;
}

void PageTaker::listEmptied() {
    if (std::exchange(listed_, true))
        return;
    PageSource& source = changes_->source();
    const auto free = pagesInMap(source, kGlobalMap, kGlobalMapOwner);
    if (!free)
        return;
    for (auto number = free->rbegin(); number != free->rend(); ++number) {
        const auto page = source.page(*number);
        const auto data =
            page ? DataPage::of(*page, kLongValueOwner, source.format()) : std::nullopt;
        if (data && data->isSound() && data->slotCount() == 0)
            emptied_.push_back(*number);
    }
}

} // namespace jet
