#include "coursetool/extract.h"

#include "app/subcommands/checked_paths.h"
#include "app/subcommands/subcommand.h"
#include "coursetool/build.h"

namespace app {

namespace {

struct Extract : Subcommand {
    std::string course;
    std::string output;
    bool force = false;

    Extract() : Subcommand("extract", "Le chemin inverse : les sources d’un cours installé") {}

    void declare(Options& options) override {
        options.course(course);
        options.output("DOSSIER", output, "Dossier des sources à écrire, neuf ou vide");
        options.flag("--force", force, "Remplace les fichiers de même nom qui y sont déjà");
        options.example("orvalente-cours extract installation -o sources");
    }

    Refusal refusal() override {
        if (Refusal wrong = notACourse(course))
            return wrong;
        if (output.empty())
            return "il manque « -o DOSSIER »";
        std::error_code error;
        if (!force && std::filesystem::exists(pathFrom(output), error) &&
            !std::filesystem::is_empty(pathFrom(output), error))
            return inQuotes(output) +
                   " n’est pas vide : choisir un dossier neuf ou vide, ou « --force » pour "
                   "remplacer ce qui y est";
        if (!force || !coursetool::liesAmongSources(pathFrom(course), pathFrom(output)))
            return std::nullopt;
        return inQuotes(output) + " fait partie du cours : choisir un autre dossier";
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
