#include "coursedata/page_index.h"

#include "text/rounding.h"

#include <cstdint>
#include <limits>
#include <optional>

namespace coursedata {

namespace {

/// Some milliseconds of work.
constexpr int kRecordsAtATime = 10'000;

using Table = std::vector<std::int16_t>;

std::optional<std::int32_t> pageNumber(const FieldValue& field) {
    // Nearly every database holds numbers here; the short way counts over 100,000 records.
    if (const double* number = std::get_if<double>(&field))
        return text::toInt32(*number);
    if (std::holds_alternative<std::monostate>(field))
        return std::nullopt;
    return text::toInt32(fieldNumber(field));
}

/// `after`: slots that the table has above its highest number.
void enter(Table& table, const FieldValue& field, int position, std::size_t after) {
    const auto number = pageNumber(field);
    if (!number || *number < 0 || *number > kMaxIndexedNumber)
        return;
    const auto slot = static_cast<std::size_t>(*number);
    if (table.size() <= slot + after)
        table.resize(slot + after + 1, 0);
    if (position <= std::numeric_limits<std::int16_t>::max())
        table[slot] = static_cast<std::int16_t>(position);
}

std::optional<std::int16_t> entry(const std::optional<Table>& table, std::int32_t number) {
    if (number < 0 || !table || static_cast<std::size_t>(number) >= table->size())
        return std::nullopt;
    return (*table)[static_cast<std::size_t>(number)];
}

} // namespace

void buildPageIndex(const Recordset& cours, PageIndex& index,
                    const std::function<void()>& letMessagesRun) {
    Table byNumber;
    Table byOrder;
    cours.forEach({QStringLiteral("Numeropage"), QStringLiteral("Index")},
                  [&](int position, std::span<const FieldValue> fields) {
                      // Codes reach only numbers below the upper bound, so it has to be one more.
                      enter(byNumber, fields[0], position, 1);
                      enter(byOrder, fields[1], position, 0);
                      if (letMessagesRun && (position + 1) % kRecordsAtATime == 0)
                          letMessagesRun();
                  });
    index.PageByNumber = std::move(byNumber);
    index.PageByOrder = std::move(byOrder);
}

std::optional<std::int16_t> positionOfCode(const PageIndex& index, std::int32_t number) {
    const auto& table = index.PageByNumber;
    if (table && static_cast<std::size_t>(number) + 1 == table->size())
        return std::nullopt;
    return entry(table, number);
}

std::optional<std::int16_t> positionInPrint(const PageIndex& index, std::int32_t number) {
    return entry(index.PageByNumber, number);
}

std::optional<std::int16_t> positionByOrder(const PageIndex& index, std::int32_t order) {
    return entry(index.PageByOrder, order);
}

} // namespace coursedata
