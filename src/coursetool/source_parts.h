#pragma once

#include "coursetool/report.h"

#include <optional>
#include <string>
#include <string_view>

namespace coursetool {

/// A page or question taken apart. The views are into the source.
struct SourceParts {
    std::string_view frontMatter;         ///< starts on line 2 of the file
    std::optional<std::string_view> body; ///< absent when the file ends with the closing fence
                                          ///< itself, without a line end: the field is NULL
    int bodyLine = 0;                     ///< line of the file on which the body starts
};

/// A fault and nothing when the fields do not stand between two fences at the file's start.
std::optional<SourceParts> splitFrontMatter(std::string_view source, const std::string& file,
                                            Report& report);

/// Whether the fields are those of a question, which alone have REFERENCE.
bool tellsQuestion(std::string_view source);

/// The body of a question: its text and, after a fence, the comment on a wrong answer. The line end
/// before the fence belongs to the question.
struct QuestionParts {
    std::string_view question;
    std::optional<std::string_view> siFaux;
    int siFauxLine = 0; ///< of the file, on which the comment starts
};
QuestionParts splitQuestion(std::string_view body, int bodyLine, const std::string& file,
                            Report& report);

} // namespace coursetool
