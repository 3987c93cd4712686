#include "check/structure_checks.h"

#include "check/directive_shape.h"
#include "markup/arguments.h"
#include "markup/directives.h"
#include "markup/drawing_state.h"
#include "page/surface_widths.h"

namespace check {

namespace {

bool isShift(const Line& line) {
    return line.runs(markup::shiftNextDownHalf, markup::shiftNextDownQuarter,
                     markup::shiftNextUpHalf, markup::shiftNextUpQuarter);
}

bool closesRow(const Line& line) {
    return line.runs(markup::closeRowWithBorders, markup::closeRowWithFill,
                     markup::closeRowWithoutBorders, markup::closeRowAndReturn);
}

/// Another surface, after which the drawing starts anew: no shift, no row, no caption waits there.
bool startsAnew(const Line& line) {
    return line.runs(markup::chooseSurface);
}

bool isCell(const Line& line) {
    return line.runs(markup::openCell) && isWellShaped(line.directive);
}

int cellNumber(const Line& line, qsizetype at, qsizetype length) {
    const QStringView rest = markup::charactersFrom(line.directive, at);
    return static_cast<int>(page::leadingNumber(rest.first(qMin(length, rest.size()))));
}

int numberOf(const Line& line) {
    return cellNumber(line, markup::kCellNumberAt, markup::kCellNumberLength);
}

} // namespace

void unendedLine(const Source& source, Findings& findings) {
    const Line& line = source.unended();
    if (line.text.trimmed().isEmpty())
        return;
    findings.add(source, line,
                 quoted(line.text) + " ne compte pas : il manque une fin de ligne après",
                 line.text.toString() + u'\n', true);
}

void lostShift(const Source& source, Findings& findings) {
    const Line* waiting = nullptr;
    const auto lose = [&] {
        if (waiting)
            findings.add(source, waiting->number,
                         quoted(waiting->text) + " ne décale rien : il vaut pour la seule ligne de "
                                                 "texte qui le suit");
        waiting = nullptr;
    };
    for (const Line& line : source.lines()) {
        if (line.isDirective ? isShift(line) || startsAnew(line) : !line.isVisibleText())
            lose();
        if (isShift(line))
            waiting = &line;
        else if (!line.isDirective)
            waiting = nullptr;
    }
    lose();
}

void openTable(const Source& source, Findings& findings) {
    const Line* first = nullptr;
    const auto tell = [&] {
        if (first)
            findings.add(source, first->number,
                         "la rangée qui commence ici n’est jamais fermée : finir par ##FINTAB, "
                         "##FINTAC, ##FINITAB ou ##FTABRET");
        first = nullptr;
    };
    for (const Line& line : source.lines()) {
        if (startsAnew(line))
            tell();
        else if (closesRow(line))
            first = nullptr;
        else if (line.runs(markup::openCell) && !first)
            first = &line;
    }
    tell();
}

void rowWithoutCell(const Source& source, Findings& findings) {
    bool open = false;
    for (const Line& line : source.lines()) {
        if (closesRow(line) && !open)
            findings.add(source, line.number,
                         quoted(line.text) + " ferme une rangée que rien n’a ouverte : il manque "
                                             "##TAB");
        if (line.runs(markup::openCell))
            open = true;
        else if (closesRow(line) || startsAnew(line))
            open = false;
    }
}

void cellsOutOfOrder(const Source& source, Findings& findings) {
    static constexpr int kLast = decltype(markup::DrawingState::bordsColonne)::last;
    int before = 0;
    for (const Line& line : source.lines()) {
        if (closesRow(line) || startsAnew(line))
            before = 0;
        if (!isCell(line))
            continue;
        const int number = numberOf(line);
        const std::string words = "cellule " + std::to_string(number);
        if (number < 1 || number > kLast)
            findings.add(source, line.number,
                         words + " : les numéros vont de 1 à " + std::to_string(kLast));
        else if (before == 0 && number != 1)
            findings.add(source, line.number,
                         words +
                             " au début d’une rangée : le bord gauche est celui de la cellule 1");
        else if (number <= before)
            findings.add(source, line.number,
                         words + " après la cellule " + std::to_string(before) +
                             " : la dernière doit porter le plus grand numéro");
        before = number;
    }
}

void cellEdges(const Source& source, Findings& findings) {
    int width = page::kPageWidthPx;
    for (const Line& line : source.lines()) {
        if (startsAnew(line))
            width = line.argument() == markup::kIllustrationName ? page::kIllustrationWidthPx
                                                                 : page::kPageWidthPx;
        if (!isCell(line))
            continue;
        const int left = cellNumber(line, markup::kCellLeftAt, markup::kCellEdgeLength);
        const int right = cellNumber(line, markup::kCellRightAt, markup::kCellEdgeLength);
        if (right <= left)
            findings.add(source, line.number,
                         "la cellule va de " + std::to_string(left) + " à " +
                             std::to_string(right) + " : son bord droit est à gauche du gauche");
        else if (right > width)
            findings.add(source, line.number,
                         "la cellule va jusqu’à " + std::to_string(right) +
                             " pixels : la surface en a " + std::to_string(width));
    }
}

void fractionOutOfOrder(const Source& source, Findings& findings) {
    enum class At { Outside, Numerator, Denominator } at = At::Outside;
    const Line* last = nullptr;
    const auto tell = [&](const Line& line, const char* sentence) {
        findings.add(source, line.number, quoted(line.text) + sentence);
    };
    for (const Line& line : source.lines()) {
        if (line.runs(markup::beginNumerator)) {
            if (at != At::Outside)
                tell(line, " avant le ##FINFRAC de la fraction précédente");
            at = At::Numerator;
        } else if (line.runs(markup::beginDenominator)) {
            if (at != At::Numerator)
                tell(line, " sans ##NUMERATEUR devant lui");
            at = At::Denominator;
        } else if (line.runs(markup::endFraction)) {
            if (at != At::Denominator)
                tell(line, " sans ##NUMERATEUR et ##DENOMINATEUR devant lui");
            at = At::Outside;
        } else {
            continue;
        }
        last = &line;
    }
    if (at != At::Outside)
        tell(*last, " : la fraction n’est jamais finie par ##FINFRAC");
}

void rootOutOfOrder(const Source& source, Findings& findings) {
    const Line* open = nullptr;
    for (const Line& line : source.lines()) {
        if (line.runs(markup::beginRoot)) {
            if (open)
                findings.add(source, open->number, "la racine n’est jamais finie par ##SQF");
            open = &line;
        } else if (line.runs(markup::endRoot)) {
            if (!open)
                findings.add(source, line.number, quoted(line.text) + " sans ##SQD devant lui");
            open = nullptr;
        }
    }
    if (open)
        findings.add(source, open->number, "la racine n’est jamais finie par ##SQF");
}

void lostCaptionLine(const Source& source, Findings& findings) {
    const Line* waiting = nullptr;
    const auto lose = [&] {
        if (waiting)
            findings.add(source, waiting->number,
                         quoted(waiting->text) + " ne se verra pas : aucun lien ne le suit");
        waiting = nullptr;
    };
    for (const Line& line : source.lines()) {
        if (line.runs(markup::firstCaptionLine) || startsAnew(line))
            lose();
        if (line.runs(markup::firstCaptionLine))
            waiting = &line;
        else if (line.runs(markup::textLink, markup::menuEntry))
            waiting = nullptr;
    }
    lose();
}

} // namespace check
