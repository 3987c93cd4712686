#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// How the calls of a program fail, each from its own number on or that one alone; see
/// write_faults.cpp.
inline constexpr std::string_view kManners[] = {"full", "short", "denied", "readonly",
                                                "io",   "dead",  "gone",   "kill"};

/// The calls of a program that are to fail: none without a manner.
struct CallFaults {
    std::filesystem::path below; ///< calls about what stands there
    std::string_view manner = {};
    std::size_t at = 0;
};

struct FaultyOutcome {
    bool killed = false;
    int code = -1;                   ///< exit status, unless it was killed
    std::string said;                ///< on both streams
    std::vector<std::string> writes; ///< the calls that were counted: "rename /a/b"
};

/// The whole file; empty when there is none.
std::string contentOf(const std::filesystem::path& file);

/// Runs a real program to its end, with those calls failing. It has no display.
FaultyOutcome runWithFaults(const std::vector<std::string>& command, const CallFaults& faults);
