#include "app/subcommands/checked_paths.h"
#include "app/subcommands/subcommand.h"
#include "app/subcommands/whole_number.h"
#include "coursetool/drawing_request.h"
#include "coursetool/source_files.h"

namespace app {

namespace {

struct Trace : Subcommand {
    std::string course;
    std::string page;
    std::string question;
    std::string source;
    std::vector<std::string> drives;
    coursetool::TraceRequest request;

    Trace() : Subcommand("trace", "Les opérations de dessin, un objet JSON par ligne") {}

    void declare(Options& options) override {
        options.course(course);
        options.pageOrQuestion(page, question);
        options.option(
            "--source", "FICHIER", source,
            "Dessine le texte d’une page, ses fins de ligne telles quelles, ou du Markdown");
        options.drives(drives);
        options.example("orvalente-cours trace installation --page 1");
        options.example("orvalente-cours trace --source page.txt");
    }

    Refusal refusal() override {
        request = {
            pathFrom(course), wholeNumber(page), pathFrom(source), {}, wholeNumber(question), {}};
        if (Refusal wrong = readDrives(drives, request.drives))
            return wrong;
        if (!source.empty()) {
            if (!course.empty() || !page.empty() || !question.empty())
                return "« --source » va sans dossier, « --page » ni « --question »";
            return notAFile(source, "le texte de la page");
        }
        if (Refusal wrong = notACourse(course))
            return wrong;
        if (!page.empty() && !question.empty())
            return "« --page » ou « --question », pas les deux";
        if (!request.page && !request.question)
            return "il manque « --page N » ou « --question REF », des nombres";
        return std::nullopt;
    }

    int run(ToolRun& run) override {
        request.compiler = [&run] { return run.compiler(); };
        if (coursetool::isMarkdown(request.source))
            run.compiler(); // made first, it outlives what draws, as what it stands on must
        if (const auto trace = run.drawing<coursetool::TraceFunction>(coursetool::kTraceSymbol))
            trace(run.argc, run.argv, request, run.out, run.report);
        return run.verdict();
    }
};

} // namespace

std::unique_ptr<Subcommand> make_trace() {
    return std::make_unique<Trace>();
}

} // namespace app
