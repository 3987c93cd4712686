#include "app/subcommands/checked_paths.h"
#include "app/subcommands/subcommand.h"
#include "coursetool/course_addition.h"
#include "coursetool/new_course.h"
#include "files/publication.h"

namespace app {

namespace {

struct New : Subcommand {
    std::string course;
    coursetool::Addition addition;

    New() : Subcommand("new", "Écrit les sources d’un petit cours, ou y ajoute une page") {}

    void declare(Options& options) override {
        options.argument("SRC", course, "Dossier des sources ; sans option, neuf ou vide");
        options.option("--page", "TITRE|N", addition.pages,
                       "Ajoute une page à la fin : son titre, ou son numéro");
        options.option("--question", "CHAPITRE", addition.questions,
                       "Ajoute une question au test du chapitre");
        options.footer("Exemples : orvalente-cours new mon-cours\n"
                       "           orvalente-cours new mon-cours --page \"La dilution\"");
    }

    Refusal refusal() override {
        if (adds())
            return notADirectory(course, "le dossier des sources");
        if (course.empty())
            return "il manque le dossier à écrire";
        files::finishPublication(pathFrom(course)); // of a call that was killed
        if (!coursetool::isFreeForCourse(pathFrom(course)))
            return inQuotes(course) + " n’est pas vide, ou est un lien : choisir un dossier neuf "
                                      "ou vide";
        return std::nullopt;
    }

    int run(ToolRun& run) override {
        if (adds())
            coursetool::addToCourse(pathFrom(course), addition, run.out, run.report);
        else
            coursetool::writeNewCourse(pathFrom(course), run.out, run.report);
        return run.verdict();
    }

private:
    bool adds() const { return !addition.pages.empty() || !addition.questions.empty(); }
};

} // namespace

std::unique_ptr<Subcommand> make_new() {
    return std::make_unique<New>();
}

} // namespace app
