#include "coursetool/convert.h"

#include "app/subcommands/checked_paths.h"
#include "app/subcommands/subcommand.h"

namespace app {

namespace {

struct Convert : Subcommand {
    std::string file;

    Convert()
        : Subcommand("convert", "Montre en quoi se compile une page ou une question en Markdown") {}

    void declare(Options& options) override {
        options.argument("PAGE.md", file, "Le fichier, avec ses champs");
        options.example("orvalente-cours convert cours/pages/02.md");
    }

    Refusal refusal() override { return notAFile(file, "la page en Markdown"); }

    int run(ToolRun& run) override {
        if (const authoring::Compiler* markdown = run.compiler())
            coursetool::convert(pathFrom(file), *markdown, run.out, run.report);
        return run.verdict();
    }
};

} // namespace

std::unique_ptr<Subcommand> make_convert() {
    return std::make_unique<Convert>();
}

} // namespace app
