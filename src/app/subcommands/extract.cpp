#include "coursetool/extract.h"

#include "app/subcommands/checked_paths.h"
#include "app/subcommands/subcommand.h"

namespace app {

namespace {

struct Extract : Subcommand {
    std::string course;
    std::string output;

    Extract() : Subcommand("extract", "Le chemin inverse : les sources d’un cours installé") {}

    void declare(Options& options) override {
        options.course(course);
        options.output("DOSSIER", output, "Dossier des sources à écrire, neuf ou vide");
        options.example("orvalente-cours extract installation -o sources");
    }

    Refusal refusal() override {
        if (Refusal wrong = notACourse(course))
            return wrong;
        if (output.empty())
            return "il manque « -o DOSSIER »";
        std::error_code error;
        if (std::filesystem::exists(pathFrom(output), error) &&
            !std::filesystem::is_empty(pathFrom(output), error))
            return inQuotes(output) + " n’est pas vide : choisir un dossier neuf ou vide";
        return std::nullopt;
    }

    int run(ToolRun& run) override {
        coursetool::extract(pathFrom(course), pathFrom(output), run.report);
        return run.verdict();
    }
};

} // namespace

std::unique_ptr<Subcommand> make_extract() {
    return std::make_unique<Extract>();
}

} // namespace app
