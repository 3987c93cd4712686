#include "jet/row_encoder.h"

#include <algorithm>

namespace jet {

namespace {

constexpr std::size_t kNumber = 2; ///< size of all numbers in a row

bool isStoredFixed(const Column& column) {
    return column.type == ColumnType::Boolean || fixedSizeOf(column.type) != 0 ||
           (column.type == ColumnType::Text && column.fixedLength);
}

std::size_t sizeOf(const Column& column) {
    if (column.type == ColumnType::Text)
        return 2 * static_cast<std::size_t>(column.length);
    return fixedSizeOf(column.type);
}

} // namespace

std::vector<ColumnPlace> placesFor(const std::vector<Column>& columns) {
    std::vector<ColumnPlace> places;
    std::size_t variableCount = 0;
    std::size_t fixedBytes = 0;
    for (const Column& column : columns) {
        ColumnPlace place;
        place.number = places.size();
        place.variableIndex = variableCount;
        place.fixed = isStoredFixed(column);
        if (!place.fixed) {
            ++variableCount;
        } else if (column.type != ColumnType::Boolean) {
            place.size = sizeOf(column);
            place.fixedOffset = fixedBytes;
            fixedBytes += place.size;
        }
        places.push_back(place);
    }
    return places;
}

RowEncoder::RowEncoder(const std::vector<ColumnPlace>& places)
    : columnCount_(places.size()), mask_((places.size() + 7) / 8) {
    std::size_t fixedBytes = 0;
    for (const ColumnPlace& place : places) {
        fixedBytes += place.size;
        variableCount_ += place.fixed ? 0 : 1;
    }
    fixed_.resize(kNumber + fixedBytes);
    put16(fixed_, 0, columnCount_);
}

void RowEncoder::begin() {
    std::fill(fixed_.begin() + kNumber, fixed_.end(), std::uint8_t{0});
    std::fill(mask_.begin(), mask_.end(), std::uint8_t{0});
    variable_.clear();
    offsets_.clear();
}

void RowEncoder::setBit(const ColumnPlace& place) {
    std::uint8_t& byte = mask_[place.number / 8];
    byte = static_cast<std::uint8_t>(byte | 1 << (place.number % 8));
}

void RowEncoder::boolean(const ColumnPlace& place, bool value) {
    if (value)
        setBit(place);
}

void RowEncoder::null(const ColumnPlace& place) {
    if (!place.fixed)
        offsets_.push_back(fixed_.size() + variable_.size());
}

void RowEncoder::bytes(const ColumnPlace& place, Bytes value) {
    setBit(place);
    if (place.fixed) {
        putBytes(fixed_, kNumber + place.fixedOffset, value);
        return;
    }
    offsets_.push_back(fixed_.size() + variable_.size());
    variable_.insert(variable_.end(), value.data(), value.data() + value.size());
}

std::size_t RowEncoder::sizeWith(std::size_t variableBytes) const {
    const std::size_t table = variableCount_ == 0 ? 0 : kNumber * (variableCount_ + 2);
    return fixed_.size() + variableBytes + table + mask_.size();
}

Bytes RowEncoder::finish() {
    row_.clear();
    row_.bytes(fixed_);
    row_.bytes(variable_);
    if (variableCount_ > 0) {
        row_.u16(fixed_.size() + variable_.size());
        for (auto offset = offsets_.rbegin(); offset != offsets_.rend(); ++offset)
            row_.u16(*offset);
        row_.u16(variableCount_);
    }
    row_.bytes(mask_);
    return row_.written();
}

} // namespace jet
