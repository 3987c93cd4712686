#include "app/subcommands/subcommand.h"
#include "exercises/answer_command.h"

#include <iostream>

namespace app {

namespace {

struct Answer : Subcommand {
    std::optional<std::string> solution;
    std::optional<std::string> text;
    bool batch = false;

    Answer() : Subcommand("answer", "Dit si une réponse tapée est juste") {}

    void declare(Options& options) override {
        options.argument("SOLUTION", solution, "Le mot ou les mots attendus");
        options.argument("TEXTE", text, "Ce que l’élève a tapé");
        options.flag("--batch", batch,
                     "Une solution, une tabulation et un texte par ligne de l’entrée");
        options.example("orvalente-cours answer \"la masse\" \"La Masse\"");
        options.footer("Écrit juste ou faux. Code de sortie : 0 juste, 1 faux, 2 mauvais appel ;\n"
                       "avec --batch 1 s’il y a une ligne sans tabulation, sinon 0.");
    }

    Refusal refusal() override {
        if (batch ? solution || text : !solution || !text)
            return "il faut SOLUTION et TEXTE, ou « --batch » seul";
        return std::nullopt;
    }

    int run(ToolRun& run) override {
        ToolRun::useStreams();
        return run.afterStreams(exercises::runAnswer(
            {solution.value_or(std::string()), text.value_or(std::string()), batch}, std::cin,
            std::cout, std::cerr));
    }
};

} // namespace

std::unique_ptr<Subcommand> make_answer() {
    return std::make_unique<Answer>();
}

} // namespace app
