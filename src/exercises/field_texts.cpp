#include "exercises/field_texts.h"

#include "page/readable_text.h"
#include "page/twips.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace exercises {

namespace {

/// How far, in twips, the middle of a text may be above or below that of a control on its line:
/// fractions, indices and exponents are nearer, the next line of running text is further away.
constexpr double kLineReach = 16 * page::kTwipsPerPixel;

/// From a control's top to its middle: half the side of a box.
constexpr double kHalfControl = 6.5 * page::kTwipsPerPixel;

/// Text that begins this much before a control's right end still stands right of it.
constexpr double kOverlap = 4 * page::kTwipsPerPixel;

double middleOf(const page::FieldOperation& field) {
    return field.y + kHalfControl;
}

double middleOf(const page::TextOperation& text) {
    return text.y + page::fontPixels(text.font.points) * page::kTwipsPerPixel / 2;
}

bool onLineOf(const page::FieldOperation& field, double middle) {
    return std::abs(middle - middleOf(field)) <= kLineReach;
}

std::vector<const page::FieldOperation*> shown(const markup::AnswerFields& fields) {
    std::vector<const page::FieldOperation*> all;
    const auto add = [&all](const markup::AnswerFields::Field& field) {
        if (field.visible)
            all.push_back(&field.place);
    };
    for (int i = 0; i <= markup::AnswerFields::kLastChoice; ++i) {
        add(*fields.Option1.slot(i));
        add(*fields.Check1.slot(i));
    }
    for (const auto* field : {&fields.Text1, &fields.Labelien, &fields.Image1, &fields.Icovideo})
        add(*field);
    return all;
}

/// The text on the field's line that begins between two positions.
BesideText textBetween(const page::FieldOperation& field, double from, double to,
                       const page::Recording& recording) {
    page::Recording line;
    BesideText found{{}, field.x + field.width};
    for (const page::Operation& operation : recording.operations()) {
        const auto* text = std::get_if<page::TextOperation>(&operation);
        if (!text || text->surface != field.surface || !onLineOf(field, middleOf(*text)) ||
            text->x < from || text->x >= to)
            continue;
        line.add(*text);
        found.right = std::max(found.right, text->x + text->width);
    }
    found.text = page::readableText(line, field.surface).simplified();
    return found;
}

} // namespace

BesideText textRightOf(const page::FieldOperation& field, const markup::AnswerFields& fields,
                       const page::Recording& recording) {
    double next = std::numeric_limits<double>::infinity();
    for (const auto* other : shown(fields))
        if (other->x > field.x && onLineOf(field, middleOf(*other)))
            next = std::min(next, other->x);
    return textBetween(field, field.x + field.width - kOverlap, next, recording);
}

BesideText textLeftOf(const page::FieldOperation& field, const markup::AnswerFields& fields,
                      const page::Recording& recording) {
    double previous = -std::numeric_limits<double>::infinity();
    for (const auto* other : shown(fields))
        if (other->x < field.x && onLineOf(field, middleOf(*other)))
            previous = std::max(previous, other->x + other->width - kOverlap);
    return textBetween(field, previous, field.x, recording);
}

} // namespace exercises
