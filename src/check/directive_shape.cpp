#include "check/directive_shape.h"

#include "markup/arguments.h"

#include <algorithm>

namespace check {

namespace {

using markup::Argument;

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

bool hasHalves(const markup::Directive& form, QStringView directive) {
    return markup::splitAtLastSharp(directive, form.keyword.size()).has_value();
}

bool isCell(QStringView argument) {
    const qsizetype edges = 2 * markup::kCellEdgeLength;
    return argument.size() >= edges + 1 && isNumeral(argument.first(edges), false, false) &&
           isNumeral(argument.sliced(edges).trimmed(), false, false);
}

} // namespace

bool isNumeral(QStringView text, bool withSign, bool withPoint) {
    if (withSign && (text.startsWith(u'-') || text.startsWith(u'+')))
        text = text.sliced(1);
    const bool plain = std::all_of(text.begin(), text.end(),
                                   [&](QChar c) { return isDigit(c) || (withPoint && c == u'.'); });
    return plain && std::any_of(text.begin(), text.end(), isDigit) && text.count(u'.') <= 1;
}

bool isWellShaped(QStringView directive) {
    const markup::Directive* const found = formOf(directive);
    if (!found)
        return false;
    const markup::Directive& form = *found;
    const QStringView argument = directive.sliced(form.keyword.size());
    switch (form.argument) {
    case Argument::None:
        return argument.isEmpty();
    case Argument::Number:
        return argument.size() == form.columns.count &&
               isNumeral(argument.trimmed(), form.columns.lowest < 0, form.columns.isFraction);
    case Argument::Factor:
        return isNumeral(argument, true, true);
    case Argument::Cell:
        return isCell(argument);
    case Argument::SizedFile:
        return argument.size() > markup::kPictureSizeLength &&
               isNumeral(argument.last(markup::kPictureSizeLength), false, false);
    case Argument::Halves:
    case Argument::Link:
    case Argument::TippedLink:
    case Argument::PageLink:
        return hasHalves(form, directive);
    case Argument::Signs:
    case Argument::Key:
        return argument.size() == 2;
    default:
        return !argument.isEmpty();
    }
}

} // namespace check
