#include "markup/arguments.h"
#include "markup/directives.h"
#include "markup/renderer.h"
#include "page/link_view.h"

#include <algorithm>

namespace markup {

namespace {

constexpr qsizetype kKeywordLength = 5;

// Where a control stands in the line, and what it takes of it, in twips. Questions are laid out
// with these figures.
constexpr double kOptionDrop = 45;
constexpr double kCheckDrop = 30;
constexpr double kTextRise = 30;
constexpr double kChoiceAdvance = 270;

page::FieldOperation fieldAtPen(Renderer& renderer, page::FieldControl control, double drop,
                                double width) {
    const page::Surface& surface = renderer.surface();
    page::FieldOperation place;
    place.surface = surface.id();
    place.control = control;
    place.x = surface.penX();
    place.y = surface.penY() + drop;
    place.width = width;
    return place;
}

/// Shows the control and moves the pen past it.
void show(Renderer& renderer, AnswerFields::Field& field, const page::FieldOperation& place) {
    field = {true, place};
    renderer.recording().add(place);
    renderer.surface().setPenX(place.x + place.width);
}

/// The first control of an array that is still hidden; when all show, nothing happens.
void showNext(Renderer& renderer, AnswerFields::Choices& choices, page::FieldControl control,
              double drop) {
    for (int index = 0; index <= AnswerFields::kLastChoice; ++index) {
        AnswerFields::Field& field = *choices.slot(index);
        if (field.visible)
            continue;
        auto place = fieldAtPen(renderer, control, drop, kChoiceAdvance);
        place.index = index;
        return show(renderer, field, place);
    }
}

} // namespace

// Questions only: a course page has no answer controls.

void optionField(Renderer& renderer, QStringView) {
    if (AnswerFields* fields = renderer.answerFields())
        showNext(renderer, fields->Option1, page::FieldControl::Option1, kOptionDrop);
}

void checkField(Renderer& renderer, QStringView) {
    if (AnswerFields* fields = renderer.answerFields())
        showNext(renderer, fields->Check1, page::FieldControl::Check1, kCheckDrop);
}

void textField(Renderer& renderer, QStringView) {
    if (AnswerFields* fields = renderer.answerFields())
        show(renderer, fields->Text1,
             fieldAtPen(renderer, page::FieldControl::Text1, -kTextRise,
                        AnswerFields::kTextBoxWidth));
}

void questionLink(Renderer& renderer, QStringView d) {
    AnswerFields* fields = renderer.answerFields();
    const auto argument = splitAtLastSharp(d, kKeywordLength);
    if (!fields || !argument)
        return;
    const page::Surface& surface = renderer.surface();
    // Level with the middle of the caption, as far as there is room above a first line.
    const double level = (surface.textHeight() - AnswerFields::kIconWidth) / 2;
    auto icon = fieldAtPen(renderer, page::FieldControl::Image1,
                           std::max(level, -std::max(0., surface.penY())),
                           AnswerFields::kIconWidth + AnswerFields::kIconGap);
    icon.tag = argument->after.toString();
    show(renderer, fields->Image1, icon);

    auto label = fieldAtPen(renderer, page::FieldControl::Labelien, 0, 0);
    label.caption = argument->before.toString();
    label.tag = icon.tag;
    label.font = surface.font();
    label.font.underline = false;
    label.ink = surface.ink();
    label.width = page::captionExtent(label.caption, label.font, surface.metrics()).width;
    show(renderer, fields->Labelien, label);
}

void questionVideo(Renderer& renderer, QStringView d) {
    AnswerFields* fields = renderer.answerFields();
    const auto argument = splitAtLastSharp(d, kKeywordLength);
    if (!fields || !argument)
        return;
    auto icon = fieldAtPen(renderer, page::FieldControl::Icovideo, 0, AnswerFields::kIconWidth);
    icon.tooltip = argument->before.toString();
    icon.tag = argument->after.toString();
    show(renderer, fields->Icovideo, icon);
}

// Course pages only.

void pageVideo(Renderer& renderer, QStringView d) {
    if (!renderer.onCoursePage())
        return;
    const QString name = d.sliced(kKeywordLength).toString();
    renderer.page().videoPage = name;
    renderer.recording().add(page::VideoOperation{name});
}

} // namespace markup
