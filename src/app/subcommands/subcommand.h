#pragma once

#include "app/subcommands/options.h"
#include "app/subcommands/tool_run.h"
#include "coursetool/exit_code.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace app {

/// Why a call makes no sense, as a French clause; nothing when it does.
using Refusal = std::optional<std::string>;

/// A subcommand of `orvalente-cours`: its options, as members that the command line fills, what is
/// wrong with them, and what it does. Each is a struct in a file of its own, named after it, and a
/// line in CMakeLists.txt.
class Subcommand {
public:
    /// `description` is a line of the help.
    Subcommand(const char* name, const char* description)
        : name_(name), description_(description) {}
    virtual ~Subcommand() = default;

    const char* name() const { return name_; }
    const char* description() const { return description_; }

    /// Names the options; called once, before anything is read.
    virtual void declare(Options& options) = 0;

    /// Looks at what was typed, and at the directories and files that must be there.
    virtual Refusal refusal() = 0;

    /// Does it, after a call that was not refused; gives the exit status.
    virtual int run(ToolRun& run) = 0;

    virtual int wrongCallStatus() const {
        return static_cast<int>(coursetool::ExitCode::WrongCall);
    }

    /// Whether the help keeps silent about it.
    virtual bool isHidden() const { return false; }

    /// Whether an argument that starts with "-", before any "--", is an option.
    virtual bool isOption(std::string_view) const { return true; }

    /// What is said of an argument that nothing takes; nothing for the usual sentence.
    virtual Refusal unexpected(std::string_view) const { return std::nullopt; }

private:
    const char* name_;
    const char* description_;
};

// What makes each, by its name: make_build(), make_calc().
#define ORVALENTE_SUBCOMMAND(name) std::unique_ptr<Subcommand> make_##name();
#include "subcommand_list.inc"
#undef ORVALENTE_SUBCOMMAND

} // namespace app
