#pragma once

#include <new>
#include <stdexcept>
#include <utility>

namespace text {

/// Thrown by a platform operation that could not be carried out.
struct StatementFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Runs one statement and goes on with the next one if it fails; false when it did. Meant for one
/// single statement whose failure cannot be told by an absent value, never for a whole procedure.
/// Programming errors (anything but a StatementFailure or exhausted memory) are not caught.
template <class Statement>
bool resumeNext(Statement&& statement) {
    try {
        std::forward<Statement>(statement)();
        return true;
    } catch (const StatementFailure&) {
        return false;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

} // namespace text
