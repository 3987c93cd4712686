#include "exercises/choices.h"

namespace exercises {

QString choiceCode(const Selection& selection) {
    QString code;
    for (const bool selected : selection)
        code += QLatin1Char(selected ? '1' : '0');
    return code;
}

bool isSelectedIn(const QString& code, int index) {
    return code.mid(index, 1) == u"1";
}

std::optional<Mark> markOf(const std::optional<QString>& solution, int index) {
    if (!solution)
        return std::nullopt;
    return solution->mid(index, 1) == u"0" ? Mark::NotInSolution : Mark::InSolution;
}

} // namespace exercises
