#pragma once

#include "jet/failure.h"

#include <optional>
#include <utility>
#include <variant>

namespace jet {

/// A value, or the failure that took its place. Asking for the one that is not there is a
/// programming error.
template <class T>
class [[nodiscard]] Result {
public:
    Result(T value) : content_(std::in_place_index<0>, std::move(value)) {}
    Result(Failure failure) : content_(std::in_place_index<1>, std::move(failure)) {}

    explicit operator bool() const { return content_.index() == 0; }

    T& operator*() & { return *std::get_if<0>(&content_); }
    const T& operator*() const& { return *std::get_if<0>(&content_); }
    T&& operator*() && { return std::move(*std::get_if<0>(&content_)); }
    T* operator->() { return std::get_if<0>(&content_); }
    const T* operator->() const { return std::get_if<0>(&content_); }

    const Failure& error() const { return *std::get_if<1>(&content_); }

private:
    std::variant<T, Failure> content_;
};

/// Success, or the failure that prevented it.
template <>
class [[nodiscard]] Result<void> {
public:
    Result() = default;
    Result(Failure failure) : failure_(std::move(failure)) {}

    explicit operator bool() const { return !failure_; }
    const Failure& error() const { return *failure_; }

private:
    std::optional<Failure> failure_;
};

} // namespace jet
