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
    add(Remark::Kind::Fault, place, sentence);
}

void Report::failure(const Place& place, std::string_view sentence) {
    ++faults_;
    ++failures_;
    add(Remark::Kind::Failure, place, sentence);
}

void Report::failure(const std::filesystem::path& path, const char* what, std::error_code cause) {
    failure({shown(path)}, std::string(what) + " : " + files::causeOf(cause));
}

void Report::warning(const Place& place, std::string_view sentence) {
    add(Remark::Kind::Warning, place, sentence);
}

void Report::outputFailure(std::error_code error) {
    failure({"sortie standard"}, "tout n’a pas pu être écrit : " + files::causeOf(error));
}

void Report::add(Remark::Kind kind, const Place& place, std::string_view sentence) {
    const char* const before = kind == Remark::Kind::Warning ? "avertissement : " : "";
    lines_.push_back(text::plainLine(locate(place).append(before).append(sentence)));
    remarks_.push_back({kind, place, std::string(sentence)});
}

std::string inQuotes(std::string_view words) {
    return std::string("« ").append(words).append(" »");
}

} // namespace coursetool
