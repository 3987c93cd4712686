#include "check/course.h"

#include <algorithm>

namespace check {

std::size_t Record::index(std::string_view field) const {
    const auto found =
        std::find_if(table_->fields.begin(), table_->fields.end(),
                     [&](const coursetool::FieldRule& rule) { return rule.name == field; });
    return static_cast<std::size_t>(found - table_->fields.begin());
}

std::optional<std::int32_t> Record::number(std::string_view field) const {
    return fields_.values.at(index(field)).integer();
}

std::optional<QString> Record::text(std::string_view field) const {
    const std::u16string* text = fields_.values.at(index(field)).text();
    return text ? std::optional(QString::fromStdU16String(*text)) : std::nullopt;
}

bool Record::flag(std::string_view field) const {
    return number(field).value_or(0) != 0;
}

const coursetool::Place& Record::place(std::string_view field) const {
    const std::size_t at = index(field);
    return at < fields_.places.size() && fields_.places[at].line > 0 ? fields_.places[at] : place_;
}

void Course::indexPages() {
    byNumber_.clear();
    byOrder_.clear();
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (const auto number = pages[i].record.number("Numeropage"))
            byNumber_[*number] = i;
        if (const auto order = pages[i].record.number("Index"))
            byOrder_[*order] = i;
    }
}

const Page* Course::page(std::int32_t number) const {
    const auto found = byNumber_.find(number);
    return found == byNumber_.end() ? nullptr : &pages[found->second];
}

const Page* Course::pageInOrder(std::int32_t index) const {
    const auto found = byOrder_.find(index);
    return found == byOrder_.end() ? nullptr : &pages[found->second];
}

} // namespace check
