#include "app/render_words.h"

#include "app/whole_number.h"
#include "coursetool/paths.h"
#include "coursetool/report.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace app {

namespace {

using coursetool::RenderFormat;
using coursetool::RenderRequest;

std::optional<RenderFormat> formatNamed(std::string name) {
    std::ranges::transform(name, name.begin(), [](unsigned char c) {
        return static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
    });
    if (name == "png")
        return RenderFormat::Png;
    if (name == "pdf")
        return RenderFormat::Pdf;
    if (name == "svg")
        return RenderFormat::Svg;
    return std::nullopt;
}

/// The format that the output's ending names.
std::optional<RenderFormat> formatOf(const std::filesystem::path& output) {
    const std::string ending = coursetool::shown(output.extension());
    return ending.empty() ? std::nullopt : formatNamed(ending.substr(1));
}

/// Empty when all is well, here and below.
std::string readWhat(const RenderWords& words, RenderRequest& request) {
    if (!words.page.empty() + !words.question.empty() + !words.source.empty() + words.all != 1)
        return "il faut un de « --page N », « --question REF », « --all » et « --source FICHIER »";
    if (!words.source.empty() && !words.course.empty())
        return "« --source » va sans dossier";
    request.page = wholeNumber(words.page);
    request.question = wholeNumber(words.question);
    if (!words.page.empty() && !request.page)
        return coursetool::inQuotes(words.page) + " n’est pas un numéro de page";
    if (!words.question.empty() && !request.question)
        return coursetool::inQuotes(words.question) + " n’est pas une référence de question";
    return {};
}

std::string readFormat(const RenderWords& words, RenderRequest& request) {
    const auto ending = formatOf(request.output);
    std::optional<RenderFormat> format = ending;
    if (!words.format.empty()) {
        format = formatNamed(words.format);
        if (!format)
            return "« --format » est png, pdf ou svg, pas " + coursetool::inQuotes(words.format);
    } else if (request.all() && ending != RenderFormat::Pdf) {
        // The output is a directory then: its name says nothing.
        format.reset();
    }
    if (!format)
        return "il manque « --format png », « pdf » ou « svg »";
    request.format = *format;
    return {};
}

std::string readScale(const RenderWords& words, RenderRequest& request) {
    if (words.scale.empty())
        return {};
    if (request.format == RenderFormat::Pdf)
        return "« --scale » va avec png et svg : un PDF s’agrandit de lui-même";
    const char* const last = words.scale.data() + words.scale.size();
    const auto [end, error] = std::from_chars(words.scale.data(), last, request.scale);
    if (error == std::errc() && end == last && request.scale >= coursetool::kMinScale &&
        request.scale <= coursetool::kMaxScale)
        return {};
    return "« --scale » est un nombre de 0.1 à 16, pas " + coursetool::inQuotes(words.scale);
}

} // namespace

std::variant<RenderRequest, std::string> readRenderWords(const RenderWords& words) {
    RenderRequest request;
    request.course = coursetool::pathFrom(words.course);
    request.source = coursetool::pathFrom(words.source);
    request.output = coursetool::pathFrom(words.output);
    std::string wrong = readWhat(words, request);
    if (wrong.empty() && words.output.empty())
        wrong = "il manque « -o SORTIE »";
    if (wrong.empty())
        wrong = readFormat(words, request);
    if (wrong.empty())
        wrong = readScale(words, request);
    if (!wrong.empty())
        return wrong;
    return request;
}

} // namespace app
