#include "app/cours_command_line.h"

#include "app/checked_paths.h"
#include "app/render_words.h"
#include "app/whole_number.h"
#include "coursetool/build.h"
#include "coursetool/paths.h"
#include "coursetool/report.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <charconv>
#include <optional>
#include <string_view>
#include <vector>

namespace app {

namespace {

namespace fs = std::filesystem;
using coursetool::inQuotes;
using coursetool::pathFrom;

/// The values of the options as they were typed.
struct Typed {
    std::string from;
    std::string output;
    std::string table;
    std::string page;
    std::string question;
    std::string source;
    RenderWords render;
    std::optional<std::string> expression;
    std::optional<std::string> solution;
    std::optional<std::string> answer;
    bool radians = false;
    bool scientific = false;
    bool steps = false;
    bool batch = false;
    std::vector<std::string> drives;
    std::vector<std::string> words;
    bool allWords = false;
    bool ignoreAccents = false;
};

/// Whether an argument of `calc` is an option and not an expression with a sign in front, "-3" or
/// "-sin 30". A single "-" before words without a digit is a slip of the pen for "--".
bool isCalcOption(std::string_view argument) {
    const bool isLong = argument.starts_with("--");
    const std::string_view name = argument.substr(isLong ? 2 : 1);
    return argument == "--" ||
           (!name.empty() && std::isalpha(static_cast<unsigned char>(name[0])) &&
            (isLong || name.find_first_of("0123456789") == name.npos));
}

/// The arguments after the program's name, the first last. Blanks mean nothing in an expression;
/// one in front of a sign keeps it from being taken for an option.
std::vector<std::string> argumentsBackwards(int argc, char** argv) {
    std::vector<std::string> arguments(argv + std::min(argc, 1), argv + argc);
    if (!arguments.empty() && arguments.front() == "calc") {
        for (std::string& argument : arguments) {
            if (argument.starts_with('-') && !isCalcOption(argument))
                argument.insert(0, 1, ' ');
        }
    }
    std::ranges::reverse(arguments);
    return arguments;
}

class Reader {
public:
    Reader() : app_("Écrit, vérifie et publie les cours d’Orvalente.", "orvalente-cours") {
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

        build_ = add("build", "Compile les sources d’un cours en un dossier d’installation");
        positional(build_, "SRC", typed_.from, "Dossier des sources");
        output(build_, "Dossier d’installation à écrire");

        convert_ = add("convert", "Montre en quoi se compile une page ou une question en Markdown");
        positional(convert_, "PAGE.md", typed_.from, "Le fichier, avec ses champs");

        extract_ = add("extract", "Le chemin inverse : les sources d’un cours installé");
        positional(extract_, "DOSSIER", typed_.from, "Dossier d’installation");
        output(extract_, "Dossier des sources à écrire, neuf ou vide");

        dump_ = add("dump", "Montre une base : ses tables, ou les lignes d’une table, en JSON");
        positional(dump_, "FICHIER.mdb", typed_.from, "Base de données");
        positional(dump_, "TABLE", typed_.table, "Table ; sans elle, les tables et leurs champs");

        trace_ = add("trace", "Les opérations de dessin, un objet JSON par ligne");
        positional(trace_, "DOSSIER", typed_.from, "Dossier d’installation");
        pageAndQuestion(trace_, typed_.page, typed_.question);
        trace_
            ->add_option("--source", typed_.source,
                         "Dessine le texte d’une page, ses fins de ligne telles quelles")
            ->type_name("FICHIER");
        drives(trace_);

        RenderWords& words = typed_.render;
        render_ = add("render", "Dessine des pages et des questions dans des fichiers");
        positional(render_, "DOSSIER", words.course, "Dossier d’installation");
        pageAndQuestion(render_, words.page, words.question);
        render_->add_flag("--all", words.all, "Toutes les pages, puis toutes les questions");
        render_
            ->add_option("--source", words.source,
                         "Le texte d’une page, ses fins de ligne telles quelles")
            ->type_name("FICHIER");
        render_
            ->add_option("-o,--output", words.output,
                         "Fichier à écrire ; avec --all un dossier, ou un PDF pour le tout")
            ->type_name("SORTIE");
        render_
            ->add_option("--format", words.format,
                         "png, pdf ou svg ; d’ordinaire la fin du nom de SORTIE le dit")
            ->type_name("FORMAT");
        render_->add_option("--scale", words.scale, "Agrandissement, de 0.1 à 16 (png et svg)")
            ->type_name("F");
        drives(render_);

        answer_ = add("answer", "Dit si une réponse tapée est juste");
        answer_->add_option("SOLUTION", typed_.solution, "Le mot ou les mots attendus")
            ->type_name("");
        answer_->add_option("TEXTE", typed_.answer, "Ce que l’élève a tapé")->type_name("");
        answer_->add_flag("--batch", typed_.batch,
                          "Une solution, une tabulation et un texte par ligne de l’entrée");
        answer_->footer("Écrit juste ou faux. Code de sortie : 0 juste, 1 faux, 2 mauvais appel ;\n"
                        "avec --batch 1 s’il y a une ligne sans tabulation, sinon 0.");

        symbols_ = add("symbols", "La liste d’images : clés, images, et d’où elles viennent");
        positional(symbols_, "DOSSIER", typed_.from,
                   "Dossier d’installation, dont les symboles comptent aussi");

        addSearch();
        addCalc();
    }

    CoursCall read(int argc, char** argv) {
        try {
            app_.parse(argumentsBackwards(argc, argv));
        } catch (const CLI::CallForHelp&) {
            return ShowText{app_.help() + "\n"};
        } catch (const CLI::CallForVersion&) {
            return ShowText{app_.version() + "\n"};
        } catch (const CLI::ParseError& error) {
            return WrongCall{sentence(error), wrongCallStatus()};
        }
        return call();
    }

private:
    CLI::App* add(const char* name, const char* description) {
        CLI::App* command = app_.add_subcommand(name, description);
        command->group("Sous-commandes");
        return command;
    }

    void addSearch() {
        search_ = add("search", "Cherche des mots dans les pages, comme la fenêtre Rechercher");
        positional(search_, "DOSSIER", typed_.from, "Dossier d’installation");
        search_->add_option("MOT", typed_.words, "Les mots, dont une page contient l’un au moins")
            ->type_name("")
            ->expected(0, -1);
        search_->add_flag("--all-words", typed_.allWords, "La page contient tous les mots");
        search_->add_flag("--ignore-accents", typed_.ignoreAccents,
                          "« e » trouve « é », et l’inverse");
        search_->footer("Écrit, par page trouvée, son numéro, une tabulation, son titre.");
    }

    void addCalc() {
        print_ = add("print", "Imprime dans un PDF ce que le bouton Imprimer donne sur une page");
        positional(print_, "DOSSIER", typed_.from, "Dossier d’installation");
        print_->add_option("--page", typed_.page, "Numéro de la page")->type_name("N");
        print_->add_option("-o,--output", typed_.output, "Fichier PDF à écrire")
            ->type_name("FICHIER.pdf");
        drives(print_);

        calc_ = add("calc", "Calcule une expression comme la calculatrice du cours");
        calc_->add_option("EXPRESSION", typed_.expression, "En un seul argument, entre guillemets")
            ->type_name("");
        calc_->add_flag("--radians", typed_.radians, "Angles en radians, et non en degrés");
        calc_->add_flag("--scientific", typed_.scientific, "Affichage scientifique : 1.2345E+04");
        calc_->add_flag("--trace", typed_.steps, "Montre le texte après chaque étape");
        calc_->add_flag("--batch", typed_.batch,
                        "Une expression par ligne de l’entrée ; pour chacune le code d’erreur,\n"
                        "une tabulation, le résultat ou le message");
        calc_->footer("Code de sortie : 0, ou le code d’erreur de la calculatrice (1 à 3) ;\n"
                      "64 mauvais appel.");
    }

    static void positional(CLI::App* command, const char* name, std::string& value,
                           const char* description) {
        command->add_option(name, value, description)->type_name("");
    }

    static void pageAndQuestion(CLI::App* command, std::string& page, std::string& question) {
        command->add_option("--page", page, "Numéro de la page")->type_name("N");
        command->add_option("--question", question, "Référence de la question : 307")
            ->type_name("REF");
    }

    void drives(CLI::App* command) {
        command
            ->add_option("--drive", typed_.drives,
                         "Donne la lettre de lecteur L à un dossier, plusieurs fois si besoin")
            ->type_name("L=DOSSIER")
            ->expected(1)
            ->take_all();
    }

    void output(CLI::App* command, const char* description) {
        command->add_option("-o,--output", typed_.output, description)->type_name("DOSSIER");
    }

    /// The library speaks English.
    std::string sentence(const CLI::ParseError& error) const {
        if (dynamic_cast<const CLI::ExtrasError*>(&error)) {
            const std::vector<std::string> extra = app_.remaining(true);
            if (typed_.expression && !extra.empty() && !extra.front().starts_with('-'))
                return "l’expression tient en un seul argument, entre guillemets";
            return "argument inattendu : " + inQuotes(extra.empty() ? "" : extra.front());
        }
        const std::string text = error.what();
        return "une option est répétée, ou sa valeur manque : " +
               inQuotes(text.substr(0, text.find_first_of(": ")));
    }

    int wrongCallStatus() const {
        return calc_->parsed() ? calculator::kWrongCall : WrongCall{}.status;
    }

    CoursCall call() const {
        if (build_->parsed())
            return buildCall();
        if (convert_->parsed())
            return convertCall();
        if (extract_->parsed())
            return extractCall();
        if (dump_->parsed())
            return dumpCall();
        if (trace_->parsed())
            return traceCall();
        if (render_->parsed())
            return renderCall();
        if (print_->parsed())
            return printCall();
        if (search_->parsed())
            return searchCall();
        if (calc_->parsed())
            return calcCall();
        if (answer_->parsed())
            return answerCall();
        if (symbols_->parsed())
            return symbolsCall();
        return WrongCall{"il manque une sous-commande"};
    }

    CoursCall buildCall() const {
        const BuildCall call{pathFrom(typed_.from), pathFrom(typed_.output)};
        if (const auto wrong = notADirectory(typed_.from, "le dossier des sources"))
            return *wrong;
        if (typed_.output.empty())
            return WrongCall{"il manque « -o DOSSIER »"};
        if (coursetool::liesAmongSources(call.source, call.output))
            return WrongCall{inQuotes(typed_.output) +
                             " fait partie des sources : choisir un autre dossier"};
        return call;
    }

    CoursCall convertCall() const {
        if (const auto wrong = notAFile(typed_.from, "la page en Markdown"))
            return *wrong;
        return ConvertCall{pathFrom(typed_.from)};
    }

    CoursCall extractCall() const {
        const ExtractCall call{pathFrom(typed_.from), pathFrom(typed_.output)};
        if (const auto wrong = notADirectory(typed_.from, "le dossier d’installation"))
            return *wrong;
        if (typed_.output.empty())
            return WrongCall{"il manque « -o DOSSIER »"};
        std::error_code error;
        if (fs::exists(call.output, error) && !fs::is_empty(call.output, error))
            return WrongCall{inQuotes(typed_.output) +
                             " n’est pas vide : choisir un dossier neuf ou vide"};
        return call;
    }

    CoursCall dumpCall() const {
        if (const auto wrong = notAFile(typed_.from, "la base de données"))
            return *wrong;
        return DumpCall{pathFrom(typed_.from), typed_.table};
    }

    CoursCall traceCall() const {
        TraceCall call{pathFrom(typed_.from),
                       wholeNumber(typed_.page),
                       pathFrom(typed_.source),
                       {},
                       wholeNumber(typed_.question)};
        if (const auto wrong = readDrives(typed_.drives, call.drives))
            return *wrong;
        if (!typed_.source.empty()) {
            if (!typed_.from.empty() || !typed_.page.empty() || !typed_.question.empty())
                return WrongCall{"« --source » va sans dossier, « --page » ni « --question »"};
            if (const auto wrong = notAFile(typed_.source, "le texte de la page"))
                return *wrong;
            return call;
        }
        if (const auto wrong = notADirectory(typed_.from, "le dossier d’installation"))
            return *wrong;
        if (!typed_.page.empty() && !typed_.question.empty())
            return WrongCall{"« --page » ou « --question », pas les deux"};
        if (!call.page && !call.question)
            return WrongCall{"il manque « --page N » ou « --question REF », des nombres"};
        return call;
    }

    CoursCall renderCall() const {
        const bool bare = !typed_.render.source.empty();
        if (const auto wrong =
                bare ? notAFile(typed_.render.source, "le texte de la page")
                     : notADirectory(typed_.render.course, "le dossier d’installation"))
            return *wrong;
        auto read = readRenderWords(typed_.render);
        if (const auto* sentence = std::get_if<std::string>(&read))
            return WrongCall{*sentence};
        auto& call = std::get<RenderCall>(read);
        if (const auto wrong = readDrives(typed_.drives, call.drives))
            return *wrong;
        const bool intoDirectory = call.all() && call.format != coursetool::RenderFormat::Pdf;
        std::error_code error;
        if (!intoDirectory && fs::is_directory(call.output, error))
            return WrongCall{inQuotes(typed_.render.output) +
                             " est un dossier : nommer un fichier"};
        if (intoDirectory && fs::exists(call.output, error) &&
            !fs::is_directory(call.output, error))
            return WrongCall{inQuotes(typed_.render.output) + " n’est pas un dossier"};
        return call;
    }

    CoursCall printCall() const {
        if (const auto wrong = notADirectory(typed_.from, "le dossier d’installation"))
            return *wrong;
        const auto page = wholeNumber(typed_.page);
        if (!page)
            return WrongCall{"il manque « --page N », N un numéro de page"};
        if (typed_.output.empty())
            return WrongCall{"il manque « -o FICHIER.pdf »"};
        PrintCall call{pathFrom(typed_.from), *page, pathFrom(typed_.output), {}};
        if (const auto wrong = readDrives(typed_.drives, call.drives))
            return *wrong;
        return call;
    }

    CoursCall searchCall() const {
        if (const auto wrong = notADirectory(typed_.from, "le dossier d’installation"))
            return *wrong;
        if (typed_.words.empty())
            return WrongCall{"il manque le mot à chercher"};
        SearchCall call{pathFrom(typed_.from), {}, typed_.allWords, typed_.ignoreAccents};
        for (const std::string& word : typed_.words)
            call.words += word + ' ';
        return call;
    }

    CoursCall calcCall() const {
        if (typed_.batch && (typed_.expression || typed_.steps))
            return WrongCall{"« --batch » va sans expression ni « --trace »", wrongCallStatus()};
        if (!typed_.batch && !typed_.expression)
            return WrongCall{"il manque l’expression", wrongCallStatus()};
        using calculator::AngleMode;
        using calculator::Format;
        return CalcCall{typed_.expression.value_or(std::string()),
                        typed_.radians ? AngleMode::Radians : AngleMode::Degrees,
                        typed_.scientific ? Format::Scientific : Format::Standard, typed_.batch,
                        typed_.steps};
    }

    CoursCall answerCall() const {
        if (typed_.batch ? typed_.solution || typed_.answer : !typed_.solution || !typed_.answer)
            return WrongCall{"il faut SOLUTION et TEXTE, ou « --batch » seul"};
        return AnswerCall{typed_.solution.value_or(std::string()),
                          typed_.answer.value_or(std::string()), typed_.batch};
    }

    CoursCall symbolsCall() const {
        if (!typed_.from.empty())
            if (const auto wrong = notADirectory(typed_.from, "le dossier d’installation"))
                return *wrong;
        return SymbolsCall{pathFrom(typed_.from)};
    }

    CLI::App app_;
    Typed typed_;
    CLI::App* build_ = nullptr;
    CLI::App* convert_ = nullptr;
    CLI::App* extract_ = nullptr;
    CLI::App* dump_ = nullptr;
    CLI::App* trace_ = nullptr;
    CLI::App* render_ = nullptr;
    CLI::App* print_ = nullptr;
    CLI::App* search_ = nullptr;
    CLI::App* calc_ = nullptr;
    CLI::App* answer_ = nullptr;
    CLI::App* symbols_ = nullptr;
};

} // namespace

CoursCall readCoursCommandLine(int argc, char** argv) {
    return Reader().read(argc, argv);
}

} // namespace app
