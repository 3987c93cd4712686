#include "coursetool/dump.h"

#include "app/subcommands/checked_paths.h"
#include "app/subcommands/subcommand.h"

namespace app {

namespace {

struct Dump : Subcommand {
    std::string file;
    std::string table; ///< empty: the tables and their columns

    Dump()
        : Subcommand("dump", "Montre une base : ses tables, ou les lignes d’une table, en JSON") {}

    void declare(Options& options) override {
        options.argument("FICHIER.mdb", file, "Base de données");
        options.argument("TABLE", table, "Table ; sans elle, les tables et leurs champs");
        options.example("orvalente-cours dump installation/Zekx.mdb");
        options.example("orvalente-cours dump installation/Zekx.mdb cours");
    }

    Refusal refusal() override { return notAFile(file, "la base de données"); }

    int run(ToolRun& run) override {
        const coursetool::ExitCode code =
            coursetool::dump(pathFrom(file), table, run.out, run.report);
        return run.report.hasFailures() ? run.verdict() : static_cast<int>(code);
    }
};

} // namespace

std::unique_ptr<Subcommand> make_dump() {
    return std::make_unique<Dump>();
}

} // namespace app
