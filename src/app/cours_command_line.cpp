#include "app/cours_command_line.h"

#include "app/subcommands/subcommand.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <vector>

namespace app {

namespace {

std::vector<std::unique_ptr<Subcommand>> allSubcommands() {
    std::vector<std::unique_ptr<Subcommand>> all;
#define ORVALENTE_SUBCOMMAND(name) all.push_back(make_##name());
#include "subcommand_list.inc"
#undef ORVALENTE_SUBCOMMAND
    return all;
}

class CommandLine {
public:
    CommandLine() : app_("Écrit, vérifie et publie les cours d’Orvalente.", "orvalente-cours") {
        app_.get_formatter()->label("OPTIONS", "OPTIONS");
        app_.get_formatter()->label("Usage", "Usage ");
        app_.get_formatter()->label("SUBCOMMAND", "SOUS-COMMANDE");
        app_.get_formatter()->label("Positionals", "Arguments");
        app_.option_defaults()->group("Options");
        app_.set_help_flag("-h,--help", "Affiche cette aide");
        app_.set_version_flag("--version", "orvalente-cours " ORVALENTE_VERSION,
                              "Affiche la version");
        app_.footer("Code de sortie : 0 tout va bien, 1 des fautes dans le cours (sur la sortie "
                    "d’erreur,\nfichier:ligne:colonne), 2 mauvais appel, 74 résultat impossible à "
                    "écrire.");
        for (const auto& command : commands_) {
            CLI::App* const parser = app_.add_subcommand(command->name(), command->description());
            parser->group(command->isHidden() ? "" : "Sous-commandes");
            Options options(*parser);
            command->declare(options);
        }
        // The subcommands have taken the exit statuses over; the rest is for the whole alone.
        app_.footer("« orvalente-cours SOUS-COMMANDE --help » montre ses options et des exemples.\n"
                    "Après « -- », rien n’est une option.\n" +
                    app_.get_footer());
        // One at a time: further down, its name is a word like others.
        app_.require_subcommand(0, 1);
    }

    int run(ToolRun& run) {
        run.parser = &app_;
        try {
            app_.parse(argumentsBackwards(run.argc, run.argv));
        } catch (const CLI::CallForHelp&) {
            return show(app_.help() + "\n", run);
        } catch (const CLI::CallForVersion&) {
            return show(app_.version() + "\n", run);
        } catch (const CLI::ParseError& error) {
            return refuse(sentence(error), called());
        }
        Subcommand* const command = called();
        if (!command)
            return refuse("il manque une sous-commande", nullptr);
        if (const Refusal wrong = command->refusal())
            return refuse(*wrong, command);
        return command->run(run);
    }

private:
    Subcommand* named(std::string_view name) const {
        const auto found = std::ranges::find_if(
            commands_, [&](const auto& command) { return command->name() == name; });
        return found == commands_.end() ? nullptr : found->get();
    }

    /// The subcommand that was read; null when there is none.
    Subcommand* called() const {
        const auto parsed = app_.get_subcommands();
        return parsed.empty() ? nullptr : named(parsed.front()->get_name());
    }

    /// The arguments after the program's name, the first last. Those that are no options are kept
    /// from being taken for some.
    std::vector<std::string> argumentsBackwards(int argc, char** argv) const {
        std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
        if (arguments.size() > 1 && arguments[0] == "--" && named(arguments[1]))
            arguments.erase(arguments.begin());
        if (const Subcommand* const command = arguments.empty() ? nullptr : named(arguments[0])) {
            const auto end = std::find(arguments.begin() + 1, arguments.end(), "--");
            for (auto argument = arguments.begin() + 1; argument != end; ++argument)
                if ((argument->starts_with('-') && !command->isOption(*argument)) ||
                    asTyped(*argument) != *argument)
                    hideFromOptions(*argument);
            std::for_each(end == arguments.end() ? end : end + 1, arguments.end(), hideFromOptions);
            if (end != arguments.end())
                arguments.erase(end);
        }
        std::ranges::reverse(arguments);
        return arguments;
    }

    /// The library speaks English.
    std::string sentence(const CLI::ParseError& error) const {
        if (dynamic_cast<const CLI::ExtrasError*>(&error)) {
            const std::vector<std::string> extra = app_.remaining(true);
            const std::string argument = extra.empty() ? std::string() : asTyped(extra.front());
            const Subcommand* const command = called();
            const Refusal own = command ? command->unexpected(argument) : std::nullopt;
            if (!command && !argument.starts_with('-'))
                return "sous-commande inconnue : " + coursetool::inQuotes(argument);
            return own ? *own : "argument inattendu : " + coursetool::inQuotes(argument);
        }
        return wrongOption(error.what());
    }

    /// "--page: 1 required N missing", "--output: At Most 1 required but received 2", "fix was
    /// given a disallowed flag override".
    static std::string wrongOption(std::string_view text) {
        const auto has = [&](std::string_view words) { return text.find(words) != text.npos; };
        const std::string_view word = text.substr(0, text.find_first_of(": "));
        const std::string name = coursetool::inQuotes(word);
        if (has("override"))
            return coursetool::inQuotes("--" + std::string(word)) + " va sans valeur";
        if (has("received"))
            return name + " est répété : l’écrire une seule fois";
        return has("missing") ? "la valeur de " + name + " manque" : "option mal écrite : " + name;
    }

    static int show(const std::string& text, ToolRun& run) {
        run.out.text() = text;
        if (!run.out.flush())
            run.report.outputFailure(run.out.error());
        return run.verdict();
    }

    static int refuse(const std::string& why, const Subcommand* command) {
        const std::string help =
            command ? std::string(command->name()) + " --help » montre ses options et des exemples"
                    : "--help » montre les sous-commandes";
        const std::string line =
            "orvalente-cours : " + why + " ; « orvalente-cours " + help + ".\n";
        std::fwrite(line.data(), 1, line.size(), stderr);
        return command ? command->wrongCallStatus()
                       : static_cast<int>(coursetool::ExitCode::WrongCall);
    }

    std::vector<std::unique_ptr<Subcommand>> commands_ = allSubcommands();
    CLI::App app_;
};

} // namespace

int runCoursCommandLine(ToolRun& run) {
    return CommandLine().run(run);
}

} // namespace app
