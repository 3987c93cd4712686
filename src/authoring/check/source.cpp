#include "authoring/check/source.h"

#include <algorithm>

namespace authoring::check {

namespace {

constexpr QStringView kLineEnd = u"\r\n";
constexpr QStringView kDirectiveMark = u"##";
constexpr QChar kParagraphEnd = u'\u00B6';

Line readLine(QStringView text, int number) {
    Line line{number, text, text.startsWith(kDirectiveMark), {}, nullptr};
    if (line.isDirective) {
        line.directive = text.sliced(kDirectiveMark.size());
        for (const markup::Directive& form : markup::directiveTable())
            if (form.matches(line.directive) &&
                (!line.what || form.keyword.size() > line.what->keyword.size()))
                line.what = &form;
    }
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

std::vector<const markup::Directive*> formsOf(QStringView directive) {
    std::vector<const markup::Directive*> forms;
    for (const markup::Directive& form : markup::directiveTable())
        if (form.matches(directive))
            forms.push_back(&form);
    std::stable_sort(forms.begin(), forms.end(), [](const auto* a, const auto* b) {
        return a->keyword.size() > b->keyword.size();
    });
    return forms;
}

} // namespace authoring::check
