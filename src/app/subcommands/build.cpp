#include "coursetool/build.h"

#include "app/subcommands/checked_paths.h"
#include "app/subcommands/subcommand.h"
#include "coursetool/paths.h"

namespace app {

namespace {

struct Build : Subcommand {
    std::string source;
    std::string output;

    Build() : Subcommand("build", "Compile les sources d’un cours en un dossier d’installation") {}

    void declare(Options& options) override {
        options.argument("SRC", source, "Dossier des sources");
        options.output("DOSSIER", output, "Dossier d’installation à écrire");
    }

    Refusal refusal() override {
        if (Refusal wrong = notADirectory(source, "le dossier des sources"))
            return wrong;
        if (output.empty())
            return "il manque « -o DOSSIER »";
        if (coursetool::liesAmongSources(pathFrom(source), pathFrom(output)))
            return inQuotes(output) + " fait partie des sources : choisir un autre dossier";
        return std::nullopt;
    }

    int run(ToolRun& run) override {
        coursetool::build(pathFrom(source), pathFrom(output), run.report);
        return run.verdict();
    }
};

} // namespace

std::unique_ptr<Subcommand> make_build() {
    return std::make_unique<Build>();
}

} // namespace app
