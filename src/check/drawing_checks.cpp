#include "check/drawing_checks.h"

#include "check/contrast.h"
#include "check/directive_shape.h"
#include "markup/columns.h"
#include "markup/directives.h"
#include "markup/draw_page.h"
#include "page/ink_area.h"
#include "page/surface_widths.h"
#include "page/twips.h"

#include <QColor>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace check {

namespace {

using page::kTwipsPerPixel;
using page::SurfaceId;

/// Less than a pixel beyond an edge is nobody's loss.
constexpr double kTolerance = kTwipsPerPixel;

std::string pixels(double twips) {
    return std::to_string(static_cast<int>(std::ceil(twips / kTwipsPerPixel)));
}

std::string surfaceWords(SurfaceId surface) {
    switch (surface) {
    case SurfaceId::PictureIllus:
        return "la marge d’illustration";
    case SurfaceId::Titre:
        return "le bandeau du titre";
    case SurfaceId::Picture2:
        return "la question";
    default:
        return "la page";
    }
}

} // namespace

void textBeyondMargin(const DrawnSource& drawn, Findings& findings) {
    std::set<std::pair<const Source*, int>> told;
    for (const DrawnWords& words : drawn.words()) {
        const double width = drawn.width(words.text.surface);
        const bool right = words.right() > width + kTolerance;
        if ((!right && words.left() >= -kTolerance) ||
            !told.insert({words.source, words.line}).second)
            continue;
        const std::string where = surfaceWords(words.text.surface);
        findings.add(*words.source, words.line,
                     quoted(words.text.text) + " est coupé : il " +
                         (right ? "va jusqu’à " + pixels(words.right()) + " pixels, " + where +
                                      " en a " + pixels(width)
                                : "commence à gauche de " + where));
    }
}

void pictureBeyondMargin(const DrawnSource& drawn, Findings& findings) {
    for (const DrawnOperation& operation : drawn.operations()) {
        const auto* picture = std::get_if<page::PictureOperation>(operation.operation);
        if (!picture)
            continue;
        const double width = drawn.width(picture->surface);
        const double right = picture->x + picture->width;
        if (right > width + kTolerance || picture->x < -kTolerance)
            findings.add(*operation.source, operation.line,
                         "l’image " + quoted(picture->name) + " est coupée : elle va de " +
                             pixels(picture->x) + " à " + pixels(right) + " pixels, " +
                             surfaceWords(picture->surface) + " en a " + pixels(width));
    }
}

void textBeyondCell(const DrawnSource& drawn, Findings& findings) {
    // The cell that each line stands in, by its right edge; 0 outside of tables.
    std::set<const Source*> sources;
    std::map<std::pair<const Source*, int>, double> edges;
    for (const DrawnOperation& operation : drawn.operations())
        sources.insert(operation.source);
    for (const Source* source : sources) {
        double edge = 0;
        for (const Line& line : source->lines()) {
            if (line.runs(markup::openCell) && isWellShaped(line.directive))
                edge = kTwipsPerPixel *
                       line.directive.sliced(markup::kCellRightAt - 1, markup::kCellEdgeLength)
                           .toDouble();
            else if (line.runs(markup::closeRowWithBorders, markup::closeRowWithFill,
                               markup::closeRowWithoutBorders, markup::closeRowAndReturn,
                               markup::chooseSurface))
                edge = 0;
            if (edge > 0)
                edges[{source, line.number}] = edge;
        }
    }
    std::set<std::pair<const Source*, int>> told;
    for (const DrawnWords& words : drawn.words()) {
        const auto place = std::pair(words.source, words.line);
        const auto edge = edges.find(place);
        // What goes beyond the surface, too, is told by another rule.
        if (edge != edges.end() && words.right() > edge->second + kTolerance &&
            words.right() <= drawn.width(words.text.surface) + kTolerance &&
            words.left() < edge->second && told.insert(place).second)
            findings.add(*place.first, place.second,
                         quoted(words.text.text) + " sort de sa cellule : il va jusqu’à " +
                             pixels(words.right()) + " pixels, elle finit à " +
                             pixels(edge->second));
    }
}

void textBelowFoot(const DrawnSource& drawn, Findings& findings) {
    if (drawn.columnHeight() <= 0)
        return;
    for (const DrawnWords& words : drawn.words()) {
        if (words.text.surface == SurfaceId::PictureTexte &&
            page::isBelow(words.text, drawn.columnHeight())) {
            findings.add(*words.source, words.line,
                         quoted(words.text.text) + " ne se voit pas : la page s’arrête au-dessus ; "
                                                   "finir la ligne par « ¶ »");
            return; // what follows on the same line of the screen goes with it
        }
    }
}

void faintInk(const DrawnSource& drawn, Findings& findings) {
    const Grounds grounds(drawn);
    std::set<std::pair<const Source*, int>> told;
    for (const DrawnWords& words : drawn.words()) {
        const double ratio = grounds.contrast(words.text);
        if (ratio >= kLeastContrast || !told.insert({words.source, words.line}).second)
            continue;
        findings.add(*words.source, words.line,
                     quoted(words.text.text) + " se lit mal : l’encre " +
                         QColor(words.text.ink).name().toStdString() + " n’a qu’un contraste de " +
                         QString::number(ratio, 'f', 1).replace(u'.', u',').toStdString() +
                         " avec son fond, il en faut " +
                         QString::number(kLeastContrast, 'f', 1).replace(u'.', u',').toStdString());
    }
}

void abandonedStatement(const DrawnSource& drawn, Findings& findings) {
    for (const DrawnOperation& operation : drawn.operations())
        if (const auto* failed = std::get_if<page::FailedOperation>(operation.operation))
            findings.add(*operation.source, operation.line,
                         (failed->directive.isEmpty() ? std::string("ce texte")
                                                      : quoted(failed->directive)) +
                             " n’a pas pu se faire : " + failed->reason.toStdString());
}

void titleTooLong(const Course& course, Findings& findings) {
    for (const Page& page : course.pages) {
        const QString title = page.record.text("titre").value_or(QString()).simplified();
        markup::DrawingState state;
        const markup::DrawnPage drawn = markup::drawPage(
            {.source = {}, .title = title}, {state, *course.pictures, *course.metrics});
        if (drawn.title != title)
            findings.add(page.record, "titre",
                         "le titre " + quoted(title) +
                             " est trop long pour son bandeau : la fin "
                             "ne se voit pas");
    }
}

} // namespace check
