#include "jet/table_builder.h"

#include "jet/cell_encoder.h"
#include "text/utf8.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace jet {

namespace {

bool isLong(const Column& column) {
    return column.type == ColumnType::Memo || column.type == ColumnType::Ole;
}

/// System tables list their columns by name, others by number.
std::vector<std::size_t> listingOrder(const std::vector<Column>& columns, bool system) {
    std::vector<std::size_t> order(columns.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    if (system)
        std::sort(order.begin(), order.end(), [&columns](std::size_t a, std::size_t b) {
            return columns[a].name < columns[b].name;
        });
    return order;
}

/// A Memo that is NULL can later become a header without moving its row.
std::size_t reserveForNulls(const std::vector<Column>& columns, std::span<const Value> values) {
    std::size_t reserve = 0;
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (columns[i].type == ColumnType::Memo && values[i].isNull())
            reserve += kLongValueHeader;
    return reserve;
}

NewDefinition definitionOf(TablePlan plan) {
    NewDefinition definition;
    definition.system = plan.system;
    definition.places = placesFor(plan.columns);
    definition.listingOrder = listingOrder(plan.columns, plan.system);
    definition.columnMaps.resize(plan.columns.size());
    definition.columns = std::move(plan.columns);
    definition.flags = std::move(plan.columnFlags);
    definition.realIndexes = std::move(plan.realIndexes);
    definition.logicalIndexes = std::move(plan.logicalIndexes);
    return definition;
}

} // namespace

TablePlan userTable(std::u16string_view name, std::span<const Column> columns) {
    TablePlan plan;
    plan.name = name;
    plan.columns.assign(columns.begin(), columns.end());
    for (const ColumnPlace& place : placesFor(plan.columns))
        plan.columnFlags.push_back(place.fixed ? kColumnFixed | kColumnUpdatable
                                               : kColumnUpdatable);
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (columns[i].autoNumber)
            plan.columnFlags[i] |= kColumnAutoNumber;
    return plan;
}

TableBuilder::TableBuilder(TablePlan plan, OutputFile& file, MapPages& maps)
    : file_(&file), name_(plan.name), definitionPages_(plan.definitionPages),
      firstDataPage_(plan.firstDataPage), encoder_(placesFor(plan.columns)),
      cells_(plan.columns.size()), longValues_(plan.columns.size(), LongValueWriter(file)),
      indexes_(plan.realIndexes.size()), indexPages_(plan.realIndexes.size()) {
    definition_ = definitionOf(std::move(plan));
    const std::size_t pages = definitionPageCount(encodeDefinition(definition_).size());
    while (definitionPages_.size() < pages)
        definitionPages_.push_back(file.allocate());

    definition_.maps = {maps.add(owned_), maps.add(withRoom_)};
    for (std::size_t i = 0; i < cells_.size(); ++i)
        if (isLong(definition_.columns[i]))
            definition_.columnMaps[i] = {maps.add(longValues_[i].owned()),
                                         maps.add(longValues_[i].withRoom())};
    for (std::size_t i = 0; i < indexes_.size(); ++i)
        definition_.realIndexes[i].map = maps.add(indexPages_[i]);
}

Result<RowPointer> TableBuilder::add(std::span<const Value> values) {
    if (const auto open = file_->state(); !open)
        return open.error();
    if (values.size() != cells_.size())
        return refused("il faut une valeur pour chaque colonne");
    if (const auto encoded = encodeCells(values); !encoded)
        return encoded.error();
    std::size_t longestInline = kLongestInline;
    if (rowSize(values, longestInline) > kJet4.longestRow)
        longestInline = 0;
    const std::size_t size = rowSize(values, longestInline);
    if (size > kJet4.longestRow)
        return refused("il ne tient pas dans une page");

    const std::size_t reserve = reserveForNulls(definition_.columns, values);
    makeRoom(size, reserve);
    const auto row = page_->add(encodeRow(values, longestInline), reserve);
    countAutoNumbers(values);
    ++definition_.rowCount;
    return *row;
}

/// Turns all values into bytes before anything is stored, so that a refused row leaves no trace.
Result<void> TableBuilder::encodeCells(std::span<const Value> values) {
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        if (values[i].isNull())
            continue;
        EncodedCell cell = encodeCell(values[i], definition_.columns[i]);
        if (cell.fault)
            return refused("colonne « " + text::toUtf8(definition_.columns[i].name) + " », " +
                           cell.fault);
        cells_[i] = std::move(cell.bytes);
    }
    return {};
}

std::size_t TableBuilder::rowSize(std::span<const Value> values, std::size_t longestInline) const {
    std::size_t variableBytes = 0;
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        if (definition_.places[i].fixed || values[i].isNull())
            continue;
        const bool isLongValue = isLong(definition_.columns[i]);
        const bool outside = isLongValue && cells_[i].size() > longestInline;
        variableBytes += (isLongValue ? kLongValueHeader : 0) + (outside ? 0 : cells_[i].size());
    }
    return encoder_.sizeWith(variableBytes);
}

void TableBuilder::countAutoNumbers(std::span<const Value> values) {
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        const auto number = definition_.columns[i].autoNumber ? values[i].integer() : std::nullopt;
        if (number && *number > 0)
            definition_.lastAutoNumber =
                std::max(definition_.lastAutoNumber, static_cast<std::uint32_t>(*number));
    }
}

/// Before the long values of the row take their pages: the file can then be read from one end to
/// the other.
void TableBuilder::makeRoom(std::size_t size, std::size_t reserve) {
    if (page_ && page_->hasRoom(size, reserve))
        return;
    if (page_)
        file_->write(page_->number(), page_->image());
    const std::uint32_t given = std::exchange(firstDataPage_, 0);
    page_.emplace(given != 0 ? given : file_->allocate(), definitionPage());
    owned_.insert(page_->number());
}

Bytes TableBuilder::encodeRow(std::span<const Value> values, std::size_t longestInline) {
    encoder_.begin();
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        const ColumnPlace& place = definition_.places[i];
        if (values[i].isNull())
            encoder_.null(place);
        else if (const auto* boolean = values[i].as<bool>())
            encoder_.boolean(place, *boolean);
        else if (!isLong(definition_.columns[i]))
            encoder_.bytes(place, cells_[i]);
        else if (cells_[i].size() <= longestInline)
            encoder_.bytes(place, inlineCell(cells_[i]));
        else
            encoder_.bytes(place, longValues_[i].store(cells_[i]));
    }
    return encoder_.finish();
}

void TableBuilder::finishPages() {
    if (page_) {
        file_->write(page_->number(), page_->image());
        withRoom_.insert(page_->number());
        page_.reset();
    }
    for (LongValueWriter& values : longValues_)
        values.flush();
    for (std::size_t i = 0; i < indexes_.size(); ++i) {
        RealIndex& index = definition_.realIndexes[i];
        index.differentKeys = indexes_[i].differentKeys();
        indexPages_[i] = indexes_[i].write(index.root, definitionPage(), *file_);
    }
}

void TableBuilder::writeDefinition() {
    jet::writeDefinition(encodeDefinition(definition_), definitionPages_, *file_);
}

Failure TableBuilder::refused(const std::string& what) const {
    return {Failure::Kind::Refused, "table « " + text::toUtf8(name_) + " », enregistrement " +
                                        std::to_string(definition_.rowCount + 1) + " : " + what};
}

} // namespace jet
