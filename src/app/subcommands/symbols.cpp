#include "coursetool/symbols.h"

#include "app/subcommands/checked_paths.h"
#include "app/subcommands/subcommand.h"

namespace app {

namespace {

struct Symbols : Subcommand {
    std::string course; ///< empty: the symbols of the program alone
    bool json = false;

    Symbols() : Subcommand("symbols", "La liste d’images : clés, images, et d’où elles viennent") {}

    void declare(Options& options) override {
        options.argument("DOSSIER", course,
                         "Dossier d’installation, dont les symboles comptent aussi");
        options.flag("--json", json, "Un objet JSON par ligne");
        options.example("orvalente-cours symbols installation");
    }

    Refusal refusal() override { return course.empty() ? std::nullopt : notACourse(course); }

    int run(ToolRun& run) override {
        coursetool::listSymbols(pathFrom(course), json, run.out, run.report);
        return run.verdict();
    }
};

} // namespace

std::unique_ptr<Subcommand> make_symbols() {
    return std::make_unique<Symbols>();
}

} // namespace app
