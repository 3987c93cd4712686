#pragma once

#include "coursetool/workspace.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

/// What is there, by path; directories end in a slash. Of a file that is changed in place, its
/// parts.
using State = std::map<std::string, std::string>;

/// What has to go together.
enum class Unit {
    All,         ///< all files, or none of them
    Each,        ///< every file for itself
    EachThenLast ///< the same, but with index.html all the others are there
};

/// Something that writes below "area" in a workspace.
struct FaultScenario {
    const char* name;
    /// Writes what was there before, and what it is to be made of elsewhere.
    std::function<void(const Workspace&)> prepare;
    std::function<std::vector<std::string>(const Workspace&)> command;
    Unit unit = Unit::All;
    /// Whether a second call does the same once more, as opposed to finding its work done.
    bool isRepeatable = true;
    std::function<State(const Workspace&)> state = nullptr; ///< that of all files without it
};

inline void PrintTo(const FaultScenario& scenario, std::ostream* out) {
    *out << scenario.name;
}

const std::vector<FaultScenario>& faultScenarios();

/// All that stands below "area".
State stateOf(const FaultScenario& scenario, const Workspace& work);
