#include "authoring/check/line_marks.h"

namespace authoring::check {

namespace {

/// A border colour beyond the palette: refused, and nothing is done. No author writes it with
/// these words behind it.
constexpr QStringView kMark = u"##TCH(fin de ligne)99";

} // namespace

QString withLineMarks(const QString& source) {
    static const QString kMarkedEnd =
        QStringLiteral("\r\n") + kMark.toString() + QStringLiteral("\r\n");
    QString marked = source;
    marked.replace(QStringLiteral("\r\n"), kMarkedEnd);
    return marked;
}

bool isLineMark(const page::Operation& operation) {
    const auto* failed = std::get_if<page::FailedOperation>(&operation);
    return failed && failed->directive == kMark;
}

} // namespace authoring::check
