#include "browser/test_parts.h"

#include "text/rounding.h"

#include <algorithm>

namespace browser {

namespace {

constexpr char16_t kWithComment = u'c';

using exercises::ChoiceArray;
using exercises::Mark;

std::u16string_view nameOf(ChoiceArray array) {
    return array == ChoiceArray::Check1 ? u"check" : u"option";
}

bool hasBit(unsigned bits, int index) {
    return (bits >> index & 1U) != 0;
}

ShownChoices readShown(Fields& fields) {
    const int check = fields.nextNumber();
    const int option = fields.nextNumber();
    return {static_cast<std::uint8_t>(check), static_cast<std::uint8_t>(option)};
}

std::int16_t number16(Fields& fields) {
    return text::toInt16(fields.nextNumber()).value_or(0);
}

} // namespace

void SiteRecords::read(std::u16string_view test) {
    *this = {};
    Fields records(test, kRecordEnd);
    Fields head(records.next());
    chapter_ = number16(head);
    title_ = head.next();
    count_ = number16(head);
    while (!records.isAtEnd()) {
        Fields fields(records.next());
        if (fields.isAtEnd())
            continue;
        Question question;
        question.number = fields.nextNumber();
        question.type = fields.nextNumber();
        const bool hasSolution = fields.nextNumber() != 0;
        const std::u16string_view solution = fields.next();
        if (hasSolution)
            question.solution = solution;
        question.plain = readShown(fields);
        question.commented = readShown(fields);
        questions_.push_back(std::move(question));
    }
}

ShownChoices SiteRecords::choices(std::u16string_view drawing) const {
    if (!current_)
        return {};
    return drawing.ends_with(kWithComment) ? current_->commented : current_->plain;
}

exercises::TestDescription SiteRecords::describe(std::int16_t chapter) const {
    if (chapter != chapter_)
        return {};
    return {title_, count_};
}

void SiteRecords::moveTo(std::int16_t, std::int16_t question) {
    const auto found = std::find_if(questions_.begin(), questions_.end(),
                                    [&](const Question& q) { return q.number == question; });
    current_ = found == questions_.end() ? nullptr : &*found;
}

int SiteRecords::type() const {
    return current_ ? current_->type : 0;
}

std::optional<std::u16string> SiteRecords::solution() const {
    return current_ ? current_->solution : std::nullopt;
}

std::u16string SiteRecords::question() const {
    return current_ ? u'q' + decimal(current_->number) : std::u16string();
}

std::u16string SiteRecords::siFaux() const {
    return std::u16string(1, kWithComment);
}

bool SiteControls::isVisible(ChoiceArray array, int index) const {
    return hasBit(array == ChoiceArray::Check1 ? shown_.check : shown_.option, index);
}

bool SiteControls::isSelected(ChoiceArray array, int index) const {
    return hasBit(array == ChoiceArray::Check1 ? given_.check : given_.option, index);
}

void SiteControls::setSelected(ChoiceArray array, int index, bool selected) {
    events_.add(u"select", nameOf(array), index, selected);
}

void SiteControls::disable(ChoiceArray array, int index) {
    events_.add(u"disable", nameOf(array), index);
}

void SiteControls::paintMark(ChoiceArray array, int index, Mark mark) {
    events_.add(u"mark", nameOf(array), index, mark == Mark::InSolution);
}

void SiteControls::setTypedText(const std::u16string& text) {
    events_.add(u"typed", text);
}

void SiteControls::disableTypedText() {
    events_.add(u"disable", u"text", 0);
}

void SiteControls::markTypedText(Mark mark) {
    events_.add(u"mark", u"text", 0, mark == Mark::InSolution);
}

void SiteView::setVerdict(const std::optional<exercises::Verdict>& verdict) {
    if (verdict)
        events_.add(u"verdict", verdict->right, verdict->expected);
    else
        events_.add(u"verdict");
}

void SiteView::drawQuestion(const std::u16string& source) {
    controls_.setShown(records_.choices(source));
    events_.add(u"draw", source);
}

} // namespace browser
