#include "app/subcommands/checked_paths.h"
#include "app/subcommands/subcommand.h"
#include "app/subcommands/whole_number.h"
#include "coursetool/drawing_request.h"

namespace app {

namespace {

struct Print : Subcommand {
    std::string course;
    std::string page;
    std::string output;
    std::vector<std::string> drives;
    coursetool::PrintRequest request;

    Print()
        : Subcommand("print", "Imprime dans un PDF ce que le bouton Imprimer donne sur une page") {}

    void declare(Options& options) override {
        options.course(course);
        options.page(page);
        options.output("FICHIER.pdf", output, "Fichier PDF à écrire");
        options.drives(drives);
        options.example("orvalente-cours print installation --page 1 -o feuilles.pdf");
    }

    Refusal refusal() override {
        if (Refusal wrong = notACourse(course))
            return wrong;
        const auto number = wholeNumber(page);
        if (!number)
            return "il manque « --page N », N un numéro de page";
        if (output.empty())
            return "il manque « -o FICHIER.pdf »";
        request = {pathFrom(course), *number, pathFrom(output), {}};
        return readDrives(drives, request.drives);
    }

    int run(ToolRun& run) override {
        if (const auto print = run.drawing<coursetool::PrintFunction>(coursetool::kPrintSymbol))
            print(run.argc, run.argv, request, run.report);
        return run.verdict();
    }
};

} // namespace

std::unique_ptr<Subcommand> make_print() {
    return std::make_unique<Print>();
}

} // namespace app
