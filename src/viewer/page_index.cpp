#include "viewer/page_index.h"

#include "text/rounding.h"

#include <cstdint>
#include <limits>
#include <optional>

namespace viewer {

namespace {

/// Some milliseconds of work.
constexpr int kRecordsAtATime = 10'000;

using Table = std::vector<std::int16_t>;

std::optional<std::int32_t> pageNumber(const platform::FieldValue& field) {
    // Nearly every database holds numbers here; the short way counts over 100,000 records.
    if (const double* number = std::get_if<double>(&field))
        return text::toInt32(*number);
    if (std::holds_alternative<std::monostate>(field))
        return std::nullopt;
    return text::toInt32(platform::fieldNumber(field));
}

void enter(Table& table, const platform::FieldValue& field, int position) {
    const auto number = pageNumber(field);
    if (!number || *number < 0 || *number > kMaxIndexedNumber)
        return;
    // The slot after the highest number is needed: the highest page is found below the upper bound.
    const auto slot = static_cast<std::size_t>(*number);
    if (table.size() < slot + 2)
        table.resize(slot + 2, 0);
    if (position <= std::numeric_limits<std::int16_t>::max())
        table[slot] = static_cast<std::int16_t>(position);
}

} // namespace

void buildPageIndex(const platform::Recordset& cours, shell::SharedState& state,
                    const std::function<void()>& letMessagesRun) {
    Table byNumber;
    Table byOrder;
    cours.forEach({QStringLiteral("Numeropage"), QStringLiteral("Index")},
                  [&](int position, std::span<const platform::FieldValue> fields) {
                      enter(byNumber, fields[0], position);
                      enter(byOrder, fields[1], position);
                      if (letMessagesRun && (position + 1) % kRecordsAtATime == 0)
                          letMessagesRun();
                  });
    state.PageByNumber = std::move(byNumber);
    state.PageByOrder = std::move(byOrder);
}

std::optional<std::int16_t> positionByNumber(const shell::SharedState& state, std::int32_t number) {
    // The last slot is the upper bound itself, which no page number reaches. Numbers without a
    // record lead to the record of position 0, which is meant so.
    const auto& table = state.PageByNumber;
    if (number < 0 || !table || static_cast<std::size_t>(number) + 1 >= table->size())
        return std::nullopt;
    return (*table)[static_cast<std::size_t>(number)];
}

} // namespace viewer
