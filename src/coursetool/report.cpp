#include "coursetool/report.h"

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
    lines_.push_back(locate(place).append(sentence));
}

void Report::warning(const Place& place, std::string_view sentence) {
    lines_.push_back(locate(place).append("avertissement : ").append(sentence));
}

std::string inQuotes(std::string_view words) {
    return std::string("« ").append(words).append(" »");
}

} // namespace coursetool
