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
    repeat({Remark::Kind::Fault, place, std::string(sentence)});
}

void Report::failure(const Place& place, std::string_view sentence) {
    repeat({Remark::Kind::Failure, place, std::string(sentence)});
}

void Report::failure(const std::filesystem::path& path, const char* what, std::error_code cause) {
    failure({shown(path)}, std::string(what) + " : " + files::causeOf(cause));
}

void Report::warning(const Place& place, std::string_view sentence) {
    repeat({Remark::Kind::Warning, place, std::string(sentence)});
}

void Report::repeat(const Remark& remark) {
    const bool warning = remark.kind == Remark::Kind::Warning;
    faults_ += warning ? 0 : 1;
    failures_ += remark.kind == Remark::Kind::Failure ? 1 : 0;
    lines_.push_back(text::plainLine(
        locate(remark.place).append(warning ? "avertissement : " : "").append(remark.sentence)));
    remarks_.push_back(remark);
}

void Report::outputFailure(std::error_code error) {
    failure({"sortie standard"}, "tout n’a pas pu être écrit : " + files::causeOf(error));
}

std::string inQuotes(std::string_view words) {
    return std::string("« ").append(words).append(" »");
}

} // namespace coursetool
