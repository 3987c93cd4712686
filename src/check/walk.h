#pragma once

#include "check/course.h"
#include "markup/arguments.h"

#include <functional>
#include <optional>

namespace check {

/// Every line of a course: of its pages, then of its questions and their comments.
template <class Visit>
void forEachLine(const Course& course, Visit visit) {
    const auto walk = [&](const Source& source) {
        for (const Line& line : source.lines())
            visit(source, line);
    };
    for (const Page& page : course.pages)
        walk(page.source);
    for (const Question& question : course.questions) {
        walk(question.source);
        walk(question.comment);
    }
}

/// The target of a link or of an entry of a menu; nothing for other lines, and for a directive that
/// lacks its "#".
inline std::optional<QStringView> targetOf(const Line& line) {
    if (!line.what)
        return std::nullopt;
    switch (line.what->argument) {
    case markup::Argument::Link:
    case markup::Argument::TippedLink:
        if (const auto parts = markup::splitAtLastSharp(line.directive, line.what->keyword.size()))
            return parts->after;
        return std::nullopt;
    case markup::Argument::KeyedLink:
        if (line.argument().size() > markup::kKeyLength)
            return line.argument().sliced(markup::kKeyLength);
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

} // namespace check
