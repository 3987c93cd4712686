#include "coursetool/build.h"

#include "app/subcommands/checked_paths.h"
#include "app/subcommands/subcommand.h"
#include "check/check_request.h"
#include "coursetool/paths.h"
#include "platform/module.h"

namespace app {

namespace {

struct Build : Subcommand {
    std::string source;
    std::string output;

    Build() : Subcommand("build", "Compile les sources d’un cours en un dossier d’installation") {}

    void declare(Options& options) override {
        options.argument("SRC", source, "Dossier des sources");
        options.output("DOSSIER", output, "Dossier d’installation à écrire");
        options.example("orvalente-cours build cours -o installation");
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
        coursetool::PlainSourceReader plain([&run] { return run.compiler(); });
        coursetool::TwiceReadSources reader(plain);
        if (coursetool::build(pathFrom(source), pathFrom(output), run.report, reader))
            warnOfWrongPages(run, reader);
        return run.verdict();
    }

private:
    /// The course stands. That nobody could look at its pages is worth a word, no more.
    void warnOfWrongPages(ToolRun& run, coursetool::SourceReader& reader) const {
        const auto found =
            platform::loadModuleFunction(ORVALENTE_DRAWING_MODULE, check::kBuildWarningsSymbol);
        if (found.address)
            reinterpret_cast<check::BuildWarningsFunction>(found.address)(
                run.argc, run.argv, pathFrom(source), reader, run.report);
        else
            run.report.warning({ORVALENTE_DRAWING_MODULE},
                               "les pages ne sont pas relues : " + found.reason);
    }
};

} // namespace

std::unique_ptr<Subcommand> make_build() {
    return std::make_unique<Build>();
}

} // namespace app
