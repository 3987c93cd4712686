#include "coursetool/search.h"

#include "app/subcommands/checked_paths.h"
#include "app/subcommands/subcommand.h"

namespace app {

namespace {

struct Search : Subcommand {
    std::string course;
    std::vector<std::string> words;
    bool allWords = false;
    bool ignoreAccents = false;
    bool json = false;

    Search()
        : Subcommand("search", "Cherche des mots dans les pages, comme la fenêtre Rechercher") {}

    void declare(Options& options) override {
        options.course(course);
        options.arguments("MOT", words, "Les mots, dont une page contient l’un au moins");
        options.flag("--all-words", allWords, "La page contient tous les mots");
        options.flag("--ignore-accents", ignoreAccents, "« e » trouve « é », et l’inverse");
        options.flag("--json", json, "Un objet JSON par ligne");
        options.example("orvalente-cours search installation --ignore-accents energie");
        options.example("orvalente-cours search installation -- -10");
        options.footer("Écrit, par page trouvée, son numéro, une tabulation, son titre.");
    }

    Refusal refusal() override {
        if (Refusal wrong = notACourse(course))
            return wrong;
        if (words.empty())
            return "il manque le mot à chercher";
        return std::nullopt;
    }

    int run(ToolRun& run) override {
        coursetool::SearchRequest request{pathFrom(course), {}, allWords, ignoreAccents, json};
        for (const std::string& word : words)
            request.words += word + ' ';
        coursetool::searchPages(request, run.out, run.report);
        return run.verdict();
    }
};

} // namespace

std::unique_ptr<Subcommand> make_search() {
    return std::make_unique<Search>();
}

} // namespace app
