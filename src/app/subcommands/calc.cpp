#include "app/subcommands/subcommand.h"
#include "calculator/calc_command.h"

#include <cctype>
#include <iostream>

namespace app {

namespace {

struct Calc : Subcommand {
    std::optional<std::string> expression;
    bool radians = false;
    bool scientific = false;
    bool steps = false;
    bool batch = false;

    Calc() : Subcommand("calc", "Calcule une expression comme la calculatrice du cours") {}

    void declare(Options& options) override {
        options.argument("EXPRESSION", expression, "En un seul argument, entre guillemets");
        options.flag("--radians", radians, "Angles en radians, et non en degrés");
        options.flag("--scientific", scientific, "Affichage scientifique : 1.2345E+04");
        options.flag("--trace", steps, "Montre le texte après chaque étape");
        options.flag("--batch", batch,
                     "Une expression par ligne de l’entrée ; pour chacune le code d’erreur,\n"
                     "une tabulation, le résultat ou le message");
        options.example("orvalente-cours calc \"2 * sin 30\"");
        options.example("orvalente-cours calc --radians \"cos 3.14159\"");
        options.footer("Code de sortie : 0, ou le code d’erreur de la calculatrice (1 à 3) ;\n"
                       "64 mauvais appel.");
    }

    Refusal refusal() override {
        if (batch && (expression || steps))
            return "« --batch » va sans expression ni « --trace »";
        if (!batch && !expression)
            return "il manque l’expression";
        return std::nullopt;
    }

    int run(ToolRun& run) override {
        using calculator::AngleMode;
        using calculator::Format;
        ToolRun::useStreams();
        return run.afterStreams(calculator::runCalc(
            {expression.value_or(std::string()), radians ? AngleMode::Radians : AngleMode::Degrees,
             scientific ? Format::Scientific : Format::Standard, batch, steps},
            std::cin, std::cout, std::cerr));
    }

    int wrongCallStatus() const override { return calculator::kWrongCall; }

    /// What is none is an expression with a sign in front, "-3" or "-sin 30". A single "-" before
    /// words without a digit is a slip of the pen for "--".
    bool isOption(std::string_view argument) const override {
        const bool isLong = argument.starts_with("--");
        const std::string_view word = argument.substr(isLong ? 2 : 1);
        return !word.empty() && std::isalpha(static_cast<unsigned char>(word[0])) &&
               (isLong || word.find_first_of("0123456789") == word.npos);
    }

    Refusal unexpected(std::string_view argument) const override {
        if (!expression || argument.starts_with('-'))
            return std::nullopt;
        return "l’expression tient en un seul argument, entre guillemets";
    }
};

} // namespace

std::unique_ptr<Subcommand> make_calc() {
    return std::make_unique<Calc>();
}

} // namespace app
