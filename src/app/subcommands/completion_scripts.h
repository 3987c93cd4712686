#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace app {

/// An option as the help tells it.
struct CompletedOption {
    std::string letter; ///< "o"; often empty
    std::string word;   ///< "output"
    std::string kind;   ///< what the help calls the value, "DOSSIER"; empty for a flag
    std::string description;
};

/// What may stand behind the name of a subcommand.
struct CompletedCall {
    std::string name;
    std::string description;
    std::vector<CompletedOption> options;
    std::vector<std::string> arguments; ///< what the help calls them, in their order
};

/// What a shell ("bash", "zsh", "fish") reads to complete these calls of `orvalente-cours`;
/// nothing for another shell.
std::optional<std::string> completionScript(std::string_view shell,
                                            const std::vector<CompletedCall>& calls);

} // namespace app
