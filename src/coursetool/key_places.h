#pragma once

#include "coursetool/report.h"
#include "coursetool/tables.h"
#include "jet/value.h"

#include <cstdint>
#include <unordered_map>

namespace coursetool {

/// The numbers of a key column and where each was given first.
class KeyPlaces {
public:
    explicit KeyPlaces(const FieldRule& key) : key_(key) {}
    /// Reports a fault when another source has the number.
    void take(const jet::Value& number, const Place& place, Report& report);

private:
    const FieldRule& key_;
    std::unordered_map<std::int32_t, Place> places_;
};

} // namespace coursetool
