#include "check/rule.h"

namespace check {

namespace {

/// As much as a terminal shows on a line beside the rest of the sentence.
constexpr qsizetype kMostQuoted = 60;

} // namespace

void Findings::add(const Source& source, int line, std::string sentence, qsizetype column) {
    all_.push_back({rule_,
                    {source.file(), source.fileLine(line), static_cast<int>(column) + 1},
                    source.record(),
                    std::move(sentence)});
}

void Findings::add(const Source& source, const Line& line, std::string sentence,
                   const QString& instead, bool safe) {
    add(source, line.number, std::move(sentence));
    if (source.isEditable())
        all_.back().edit = Edit{source.fileLine(line.number), line.text.toString().toStdString(),
                                instead.toStdString(), safe};
}

void Findings::add(const Record& record, std::string_view field, std::string sentence,
                   std::optional<Edit> edit) {
    all_.push_back(
        {rule_, record.place(field), record.name(), std::move(sentence), std::move(edit)});
}

void Findings::add(coursetool::Place place, std::string sentence) {
    all_.push_back({rule_, std::move(place), {}, std::move(sentence)});
}

std::string quoted(QStringView words) {
    QString shown = words.toString().simplified();
    if (shown.size() > kMostQuoted)
        shown = shown.first(kMostQuoted - 1) + u'…';
    return coursetool::inQuotes(shown.toStdString());
}

} // namespace check
