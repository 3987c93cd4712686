#include "app/subcommands/checked_paths.h"
#include "app/subcommands/subcommand.h"
#include "check/check_request.h"

#include <algorithm>
#include <set>

namespace app {

namespace {

using check::CheckFormat;
using coursetool::ExitCode;

/// Codes, one or more in each word, commas between them.
std::set<std::string> codesIn(const std::vector<std::string>& words) {
    std::set<std::string> codes;
    for (const std::string& word : words)
        for (std::size_t start = 0; start < word.size();) {
            const std::size_t end = std::min(word.find(',', start), word.size());
            codes.insert(word.substr(start, end - start));
            start = end + 1;
        }
    return codes;
}

struct Check : Subcommand {
    std::string course;
    bool json = false;
    std::string format;
    std::vector<std::string> ignored;
    std::vector<std::string> drives;
    check::CheckRequest request;

    Check()
        : Subcommand(
              "check",
              "Relit un cours : ce qui ne se verra pas, ne mène nulle part, ne peut être juste") {}

    void declare(Options& options) override {
        options.argument("DOSSIER", course, "Dossier des sources, ou dossier d’installation");
        options.flag("--fix", request.fix,
                     "Corrige dans les sources ce qui ne peut vouloir dire qu’une chose");
        options.flag("--json", json, "Un objet JSON par ligne");
        options.option("--format", "FORMAT", format, "text, json ou sarif (SARIF 2.1.0)");
        options.option("--ignore", "CODES", ignored, "Ne dit rien de ces règles : L103,R301");
        options.option("--explain", "CODE", request.explained,
                       "Explique une règle ; « toutes » : leur liste");
        options.drives(drives);
        options.example("orvalente-cours check cours");
        options.example("orvalente-cours check cours --ignore L103,R301");
        options.example("orvalente-cours check --explain N401");
        options.footer(
            "Code de sortie : 0 pas de faute, 1 des fautes, 2 mauvais appel, 74 résultat "
            "impossible à écrire.");
    }

    Refusal refusal() override {
        if (!request.explained.empty())
            return std::nullopt;
        if (Refusal wrong = notADirectory(course, "le dossier du cours"))
            return wrong;
        if (Refusal wrong = readDrives(drives, request.drives))
            return wrong;
        request.course = pathFrom(course);
        request.ignored = codesIn(ignored);
        return readFormat();
    }

    int run(ToolRun& run) override {
        const auto function = run.drawing<check::CheckFunction>(check::kCheckSymbol);
        const ExitCode code =
            function ? function(run.argc, run.argv, request, run.out, run.report) : ExitCode::Fine;
        return run.report.hasFailures() || code == ExitCode::Fine ? run.verdict()
                                                                  : static_cast<int>(code);
    }

private:
    Refusal readFormat() {
        if (json && !format.empty() && format != "json")
            return "« --json » va sans « --format »";
        if (json || format == "json")
            request.format = CheckFormat::Json;
        else if (format == "sarif")
            request.format = CheckFormat::Sarif;
        else if (!format.empty() && format != "text")
            return "« --format » est text, json ou sarif, pas " + inQuotes(format);
        return std::nullopt;
    }
};

} // namespace

std::unique_ptr<Subcommand> make_check() {
    return std::make_unique<Check>();
}

} // namespace app
