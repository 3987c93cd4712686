#pragma once

#include "app/cours_command_line.h"

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace app {

/// The subcommand `check`: its options, and the call that they make.
class CheckWords {
public:
    void addTo(CLI::App& command);
    CoursCall call() const;

private:
    std::string course_;
    bool fix_ = false;
    bool json_ = false;
    std::string format_;
    std::vector<std::string> ignored_;
    std::vector<std::string> drives_;
    std::string explained_;
};

} // namespace app
