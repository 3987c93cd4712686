#include "app/subcommands/completion_scripts.h"
#include "app/subcommands/subcommand.h"

#include <CLI/CLI.hpp>

namespace app {

namespace {

/// Neither in the help nor in what it writes: packages are made with it.
struct Completion : Subcommand {
    std::string shell;

    Completion() : Subcommand("completion", "Écrit de quoi compléter la ligne de commande") {}

    void declare(Options& options) override {
        options.argument("SHELL", shell, "bash, zsh ou fish");
        options.example("orvalente-cours completion bash");
    }

    Refusal refusal() override {
        if (completionScript(shell, {}))
            return std::nullopt;
        return "il faut bash, zsh ou fish, pas " + coursetool::inQuotes(shell);
    }

    int run(ToolRun& run) override {
        run.out.text() = completionScript(shell, calls(*run.parser)).value_or("");
        if (!run.out.flush())
            run.report.outputFailure(run.out.error());
        return run.verdict();
    }

    bool isHidden() const override { return true; }

private:
    static std::vector<CompletedCall> calls(const CLI::App& parser) {
        std::vector<CompletedCall> all;
        const auto shown = [](const CLI::App* command) { return !command->get_group().empty(); };
        for (const CLI::App* command : parser.get_subcommands(shown)) {
            CompletedCall call{command->get_name(), command->get_description(), {}, {}};
            for (const CLI::Option* option : command->get_options())
                add(*option, call);
            all.push_back(std::move(call));
        }
        return all;
    }

    static void add(const CLI::Option& option, CompletedCall& call) {
        if (!option.nonpositional()) {
            call.arguments.push_back(option.get_name());
            return;
        }
        CompletedOption row{{}, {}, {}, option.get_description()};
        if (!option.get_snames().empty())
            row.letter = option.get_snames().front();
        row.word = option.get_lnames().front();
        if (option.get_items_expected_max() > 0)
            row.kind = option.get_type_name();
        call.options.push_back(std::move(row));
    }
};

} // namespace

std::unique_ptr<Subcommand> make_completion() {
    return std::make_unique<Completion>();
}

} // namespace app
