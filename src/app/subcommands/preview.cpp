#include "app/subcommands/checked_paths.h"
#include "app/subcommands/subcommand.h"
#include "platform/sibling_program.h"

namespace app {

namespace {

struct Preview : Subcommand {
    std::string source;
    std::string scale;

    Preview() : Subcommand("preview", "Montre un cours pendant qu’il s’écrit") {}

    void declare(Options& options) override {
        options.argument("SRC", source, "Dossier des sources");
        options.option("--scale", "F", scale, "Agrandit tout F fois (de 1 à 4), ou auto");
        options.example("orvalente-cours preview mon-cours");
        options.footer("Un fichier enregistré est aussitôt à l’écran. Ctrl+clic sur la page écrit "
                       "fichier:ligne ;\nun clic sur une faute copie fichier:ligne:colonne.");
    }

    Refusal refusal() override { return notADirectory(source, "le dossier des sources"); }

    int run(ToolRun& run) override {
        std::vector<std::string> arguments{"--preview", source};
        if (!scale.empty())
            arguments.insert(arguments.end(), {"--scale", scale});
        run.report.fault({"orvalente"}, "ce programme manque, à réinstaller : " +
                                            platform::becomeSibling("orvalente", arguments));
        return run.verdict();
    }
};

} // namespace

std::unique_ptr<Subcommand> make_preview() {
    return std::make_unique<Preview>();
}

} // namespace app
