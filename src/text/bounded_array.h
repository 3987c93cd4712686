#pragma once

#include <array>
#include <cstddef>

namespace text {

/// A fixed table with the indices First to Last, both included. Nothing outside is reachable: a
/// read gives no slot and a store reports false, so that the statement at hand is abandoned.
template <class T, int First, int Last>
class BoundedArray {
    static_assert(First <= Last);

public:
    static constexpr int first = First;
    static constexpr int last = Last;

    const T* slot(int index) const {
        return contains(index) ? &slots_[static_cast<std::size_t>(index - First)] : nullptr;
    }

    T* slot(int index) {
        return contains(index) ? &slots_[static_cast<std::size_t>(index - First)] : nullptr;
    }

    bool store(int index, const T& value) {
        if (!contains(index))
            return false;
        slots_[static_cast<std::size_t>(index - First)] = value;
        return true;
    }

    /// The value at `index`, `otherwise` outside the bounds.
    T valueOr(int index, T otherwise) const {
        const T* found = slot(index);
        return found ? *found : otherwise;
    }

private:
    static constexpr bool contains(int index) { return index >= First && index <= Last; }

    std::array<T, static_cast<std::size_t>(Last - First + 1)> slots_{};
};

} // namespace text
