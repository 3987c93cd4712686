#include "app/subcommands/checked_paths.h"
#include "app/subcommands/subcommand.h"
#include "app/subcommands/whole_number.h"
#include "coursetool/drawing_request.h"
#include "coursetool/source_files.h"

#include <algorithm>
#include <charconv>

namespace app {

namespace {

using coursetool::RenderFormat;
using coursetool::RenderFormatRow;

/// The names of the formats, or only of those that can be scaled, in their order.
std::vector<std::string> formatNames(bool scaledOnly = false) {
    std::vector<std::string> names;
    for (const RenderFormatRow& row : coursetool::kRenderFormats)
        if (row.isScaled || !scaledOnly)
            names.emplace_back(row.name);
    return names;
}

/// "png, pdf ou svg", `last` being " ou ".
std::string listed(const std::vector<std::string>& words, std::string_view last) {
    std::string list = words.front();
    for (std::size_t i = 1; i < words.size(); ++i)
        list.append(i + 1 < words.size() ? ", " : last).append(words[i]);
    return list;
}

std::string withCase(std::string text, char first, char other) {
    std::ranges::transform(text, text.begin(), [=](unsigned char c) {
        return static_cast<char>(c >= first && c < first + 26 ? c - first + other : c);
    });
    return text;
}

/// The format of that name, in any letter case.
std::optional<RenderFormat> formatNamed(const std::string& name) {
    for (const RenderFormatRow& row : coursetool::kRenderFormats)
        if (row.name == withCase(name, 'A', 'a'))
            return row.format;
    return std::nullopt;
}

/// The format that the output's ending names.
std::optional<RenderFormat> formatOf(const std::filesystem::path& output) {
    const std::string ending = coursetool::shown(output.extension());
    return ending.empty() ? std::nullopt : formatNamed(ending.substr(1));
}

struct Render : Subcommand {
    std::string course;
    std::string source;
    std::string output;
    std::string page;
    std::string question;
    bool all = false;
    std::string format;
    std::string scale;
    std::vector<std::string> drives;
    coursetool::RenderRequest request;

    Render() : Subcommand("render", "Dessine des pages et des questions dans des fichiers") {}

    void declare(Options& options) override {
        options.course(course);
        options.pageOrQuestion(page, question);
        options.flag("--all", all, "Toutes les pages, puis toutes les questions");
        options.option("--source", "FICHIER", source,
                       "Le texte d’une page, ses fins de ligne telles quelles, ou du Markdown");
        options.output("SORTIE", output,
                       "Fichier à écrire ; avec --all un dossier, ou un PDF pour le tout");
        options.option("--format", "FORMAT", format,
                       listed(formatNames(), " ou ") +
                           " ; d’ordinaire la fin du nom de SORTIE le dit");
        options.option("--scale", "F", scale,
                       "Agrandissement, de 0.1 à 16 (" + listed(formatNames(true), " et ") + ")");
        options.drives(drives);
        options.example("orvalente-cours render installation --page 1 -o page.png --scale 2");
        options.example("orvalente-cours render installation --all -o cours.pdf");
        options.example("orvalente-cours render --source page.txt -o page.svg");
    }

    Refusal refusal() override {
        if (Refusal wrong =
                source.empty() ? notACourse(course) : notAFile(source, "le texte de la page"))
            return wrong;
        request.course = pathFrom(course);
        request.source = pathFrom(source);
        request.output = pathFrom(output);
        if (Refusal wrong = readWhat())
            return wrong;
        if (output.empty())
            return "il manque « -o SORTIE »";
        if (Refusal wrong = readFormat())
            return wrong;
        if (Refusal wrong = readScale())
            return wrong;
        if (Refusal wrong = readDrives(drives, request.drives))
            return wrong;
        return wrongOutput();
    }

    int run(ToolRun& run) override {
        request.compiler = [&run] { return run.compiler(); };
        if (coursetool::isMarkdown(request.source))
            run.compiler(); // made first, it outlives what draws, as what it stands on must
        if (const auto render = run.drawing<coursetool::RenderFunction>(coursetool::kRenderSymbol))
            render(run.argc, run.argv, request, run.report);
        return run.verdict();
    }

private:
    Refusal readWhat() {
        if (!page.empty() + !question.empty() + !source.empty() + all != 1)
            return "il faut un de « --page N », « --question REF », « --all » et « --source "
                   "FICHIER »";
        if (!source.empty() && !course.empty())
            return "« --source » va sans dossier";
        request.page = wholeNumber(page);
        request.question = wholeNumber(question);
        if (!page.empty() && !request.page)
            return inQuotes(page) + " n’est pas un numéro de page";
        if (!question.empty() && !request.question)
            return inQuotes(question) + " n’est pas une référence de question";
        return std::nullopt;
    }

    Refusal readFormat() {
        const auto ending = formatOf(request.output);
        std::optional<RenderFormat> asked = ending;
        if (!format.empty()) {
            asked = formatNamed(format);
            if (!asked)
                return "« --format » est " + listed(formatNames(), " ou ") + ", pas " +
                       inQuotes(format);
        } else if (request.all() && ending && !coursetool::rowOf(*ending).holdsAll) {
            asked.reset(); // the output is a directory then: its name says nothing
        }
        if (!asked)
            return "il manque " + exampleFormats();
        request.format = *asked;
        return std::nullopt;
    }

    static std::string exampleFormats() {
        std::vector<std::string> names = formatNames();
        names.front().insert(0, "--format ");
        for (std::string& name : names)
            name = inQuotes(name);
        return listed(names, " ou ");
    }

    Refusal readScale() {
        if (scale.empty())
            return std::nullopt;
        const RenderFormatRow& row = coursetool::rowOf(request.format);
        if (!row.isScaled)
            return "« --scale » va avec " + listed(formatNames(true), " et ") + " : un " +
                   withCase(std::string(row.name), 'a', 'A') + " s’agrandit de lui-même";
        const char* const last = scale.data() + scale.size();
        const auto [end, error] = std::from_chars(scale.data(), last, request.scale);
        if (error == std::errc() && end == last && request.scale >= coursetool::kMinScale &&
            request.scale <= coursetool::kMaxScale)
            return std::nullopt;
        return "« --scale » est un nombre de 0.1 à 16, pas " + inQuotes(scale);
    }

    Refusal wrongOutput() const {
        std::error_code error;
        const bool isDirectory = std::filesystem::is_directory(request.output, error);
        const bool wanted = request.all() && !coursetool::rowOf(request.format).holdsAll;
        if (!wanted && isDirectory)
            return inQuotes(output) + " est un dossier : nommer un fichier";
        if (wanted && !isDirectory && std::filesystem::exists(request.output, error))
            return inQuotes(output) + " n’est pas un dossier";
        return std::nullopt;
    }
};

} // namespace

std::unique_ptr<Subcommand> make_render() {
    return std::make_unique<Render>();
}

} // namespace app
