#include "coursetool/report.h"

#include "coursetool/paths.h"
#include "files/cause.h"
#include "text/utf8.h"

namespace coursetool {

namespace {

std::string locate(const Place& place) {
    std::string text = place.file;
    if (place.line > 0) {
        text += ':' + std::to_string(place.line);
        if (place.column > 0)
            text += ':' + std::to_string(place.column);
    }
    return text + ": ";
}

} // namespace

void Report::fault(const Place& place, std::string_view sentence) {
    ++faults_;
    add(place, sentence);
}

void Report::failure(const Place& place, std::string_view sentence) {
    ++failures_;
    fault(place, sentence);
}

void Report::failure(const std::filesystem::path& path, const char* what, std::error_code cause) {
    failure({shown(path)}, std::string(what) + " : " + files::causeOf(cause));
}

void Report::warning(const Place& place, std::string_view sentence) {
    add(place, std::string("avertissement : ").append(sentence));
}

void Report::outputFailure(std::error_code error) {
    failure({"sortie standard"}, "tout n’a pas pu être écrit : " + files::causeOf(error));
}

void Report::add(const Place& place, std::string_view sentence) {
    lines_.push_back(text::plainLine(locate(place).append(sentence)));
}

std::string inQuotes(std::string_view words) {
    return std::string("« ").append(words).append(" »");
}

} // namespace coursetool
