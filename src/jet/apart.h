#pragma once

#include "jet/bytes.h"

#include <algorithm>
#include <cstdint>
#include <memory>

namespace jet {

/// The sanitizers know the ends of allocations, and nothing of those of a page or a cell within.
/// For them these are an allocation of their own, so that they tell who reads beyond, or after
/// giving back what keeps them: a copy, which `keeper` keeps from here on. Elsewhere the bytes
/// themselves.
inline Bytes apart(Bytes bytes, [[maybe_unused]] std::shared_ptr<const std::uint8_t[]>& keeper) {
#ifdef JET_SANITIZED
    const std::shared_ptr<std::uint8_t[]> copy(new std::uint8_t[bytes.size()]);
    std::copy_n(bytes.data(), bytes.size(), copy.get());
    keeper = copy;
    return {copy.get(), bytes.size()};
#else
    return bytes;
#endif
}

} // namespace jet
