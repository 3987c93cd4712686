#include "check/source.h"

namespace check {

namespace {

constexpr QStringView kLineEnd = u"\r\n";
constexpr QStringView kDirectiveMark = u"##";
constexpr QChar kParagraphEnd = u'\u00B6';

Line readLine(QStringView text, int number) {
    Line line{number, text, text.startsWith(kDirectiveMark), {}, nullptr, nullptr};
    if (!line.isDirective || text.size() == kDirectiveMark.size())
        return line;
    line.directive = text.sliced(kDirectiveMark.size());
    line.what = formOf(line.directive);
    for (const markup::Directive* const form : markup::directivesFrom(line.directive.front()))
        if (form->match == markup::Match::Whole && line.directive.size() > form->keyword.size() &&
            line.directive.startsWith(form->keyword) &&
            (!line.what || line.what->keyword.size() < form->keyword.size()))
            line.wholeAhead = form;
    return line;
}

} // namespace

bool Line::isVisibleText() const {
    if (isDirective)
        return false;
    const QStringView words = text.endsWith(kParagraphEnd) ? text.chopped(1) : text;
    return !words.trimmed().isEmpty();
}

Source::Source(Kind kind, QString text, coursetool::Place start, std::string record,
               bool isEditable)
    : kind_(kind), text_(std::move(text)), start_(std::move(start)), record_(std::move(record)),
      isEditable_(isEditable) {
    const QStringView all = text_;
    qsizetype from = 0;
    for (;;) {
        const int number = static_cast<int>(lines_.size()) + 1;
        const qsizetype end = all.indexOf(kLineEnd, from);
        if (end < 0) {
            unended_ = readLine(all.sliced(from), number);
            return;
        }
        lines_.push_back(readLine(all.sliced(from, end - from), number));
        from = end + kLineEnd.size();
    }
}

int Source::fileLine(int number) const {
    const auto index = static_cast<std::size_t>(number - 1);
    return index < fileLines_.size() ? fileLines_[index] : start_.line + number - 1;
}

const markup::Directive* formOf(QStringView directive) {
    const markup::Directive* longest = nullptr;
    if (directive.isEmpty())
        return nullptr;
    for (const markup::Directive* const form : markup::directivesFrom(directive.front()))
        if (form->matches(directive) &&
            (!longest || form->keyword.size() > longest->keyword.size()))
            longest = form;
    return longest;
}

} // namespace check
