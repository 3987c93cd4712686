#include "search/page_search.h"

#include "search/course_pages_state.h"
#include "text/letters.h"
#include "text/numeric_reader.h"
#include "text/rounding.h"

#include <algorithm>
#include <utility>

namespace search {

namespace {

std::u16string folded(std::u16string_view from, bool ignoreAccents) {
    std::u16string to(from);
    for (char16_t& c : to) {
        c = text::lowerCase(c);
        if (ignoreAccents)
            c = text::lowerCase(text::withoutAccent(c)); // İ loses its point and is a capital then
    }
    return to;
}

bool isSet(const jet::Result<jet::Value>& flag) {
    return flag && flag->number().value_or(0) != 0;
}

std::int32_t pageNumber(const jet::Result<jet::Value>& field) {
    if (!field)
        return 0;
    const double number =
        field->text() ? text::leadingNumber(*field->text()) : field->number().value_or(0);
    return text::toInt32(number).value_or(0);
}

} // namespace

PageSearch::PageSearch(CoursePages& pages, Query query) : pages_(pages), query_(std::move(query)) {
    for (std::u16string& word : query_.words)
        word = folded(word, query_.ignoreAccents);
}

bool PageSearch::advance() {
    CoursePages::State& state = *pages_.state_;
    if (query_.words.empty() || position_ >= pages_.lastPosition())
        return false;
    const auto at = static_cast<std::size_t>(++position_);
    const auto cell = [&](std::size_t column) { return state.table.value(at, column); };
    if (const auto source = cell(state.fpc);
        isSet(cell(state.moteur)) && source && source->text()) {
        const std::u16string page = folded(*source->text(), query_.ignoreAccents);
        const auto holds = [&](const std::u16string& word) { return page.find(word) != page.npos; };
        if (query_.allWords ? std::ranges::all_of(query_.words, holds)
                            : std::ranges::any_of(query_.words, holds)) {
            FoundPage& found = found_.emplace_back();
            found.position = position_;
            if (state.numeropage)
                found.number = pageNumber(cell(*state.numeropage));
            if (const auto title = state.titre ? cell(*state.titre) : jet::Value();
                title && title->text())
                found.title = *title->text();
        }
    }
    return position_ < pages_.lastPosition();
}

} // namespace search
