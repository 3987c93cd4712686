#include "page/formula_shapes.h"

#include "page/sign_faces.h"
#include "page/spoken_line.h"
#include "page/text_lines.h"
#include "page/twips.h"

#include <algorithm>
#include <cmath>

namespace page {

namespace {

/// Positions in 16 bits are rounded to whole twips, widths twice; what is a pixel apart is at the
/// same place.
constexpr double kSlack = 15;

/// What belongs to a fraction or root is no further from its bar than this many times the height
/// of its letters.
constexpr double kFarthest = 5;

/// Twips a point from which text that begins further left is on another line: a fraction is half a
/// line away, which is more than a hat.
constexpr double kOtherLine = 8.5;

/// Where a bar is that everything stands below.
constexpr double kFarAbove = -1e30;

/// Most pieces of one formula, and most of its text in UTF-16 units, far more than a line holds: a
/// hostile page costs no more than its length.
constexpr std::size_t kMostPieces = 200;
constexpr qsizetype kMostText = 4000;

/// Strokes that are kept to know a sign by: as many as the row of a table with all its cells has.
constexpr std::size_t kMostStrokes = 40;

/// Heights of a mark over a text above the top of its line, and at most what it is longer than the
/// text, in twips.
constexpr double kLowMark = 30;
constexpr double kHighMark = 60;
constexpr double kLongestOverhang = 200;

/// Length of the shaft of a reaction's arrow in heights of its line, and its axis below the top.
constexpr double kShaft = 1.6;
constexpr double kAxis = 0.5;

bool near(double a, double b) {
    return std::abs(a - b) <= kSlack;
}

bool isLevel(const LineOperation& line) {
    return line.y1 == line.y2;
}

bool isUpright(const LineOperation& line) {
    return line.x1 == line.x2;
}

bool follows(const LineOperation& before, const LineOperation& line) {
    return near(before.x2, line.x1) && near(before.y2, line.y1);
}

std::vector<const TextPiece*> onOneSide(const TextPieces& pieces, std::size_t first, double bar,
                                        bool above) {
    std::vector<const TextPiece*> side;
    for (std::size_t at = first; at < pieces.size(); ++at)
        if ((pieces[at].area.center().y() < bar) == above)
            side.push_back(&pieces[at]);
    std::stable_sort(side.begin(), side.end(),
                     [](const auto* a, const auto* b) { return a->x < b->x; });
    return side;
}

/// Where the line of several pieces is: that of the first of the largest.
double lineOf(const std::vector<const TextPiece*>& pieces) {
    return (*std::max_element(
                pieces.begin(), pieces.end(),
                [](const auto* a, const auto* b) { return a->font.points < b->font.points; }))
        ->y;
}

/// Whether `next`, drawn right after a piece, cannot stand in the same numerator or denominator as
/// it, nor below the bar that the piece is above.
bool startsAnew(const TextPiece& piece, const TextPiece& next, double bar) {
    const bool isAbove = piece.area.center().y() < bar;
    if (isAbove != (next.area.center().y() < bar))
        return !isAbove;
    return next.area.left() < piece.area.right() - kSlack &&
           std::abs(next.y - piece.y) > kOtherLine * piece.font.points;
}

/// A single sign or number needs no brackets under a root.
bool isShort(const QString& text) {
    return text.size() == 1 ||
           std::all_of(text.begin(), text.end(), [](QChar c) { return c.isDigit() || c == u','; });
}

bool isSimple(const QString& spoken) {
    return !spoken.contains(u' ');
}

/// A bracket, parenthesis or brace around something tall, in one go from the upper end to the
/// lower: how many strokes it has, and which it is.
struct TallSign {
    std::size_t strokes;
    bool isStraight;
    const char16_t* opening;
    const char16_t* closing;
    const char16_t* spoken;
};

constexpr TallSign kTallSigns[] = {{3, true, u"[", u"]", u"le crochet"},
                                   {18, false, u"(", u")", u"la parenthèse"},
                                   {34, false, u"{", u"}", u"l’accolade"}};

/// A tall sign is twice as high as the line, which stands in its middle.
constexpr double kTall = 2;
/// Its greatest width, in heights of the line.
constexpr double kTallWidth = 0.5;
/// Height of a line in twips for a point of its letters, about.
constexpr double kLineOfAPoint = 23;

} // namespace

TextPiece pieceOf(const TextOperation& run) {
    TextPiece piece;
    static_cast<TextOperation&>(piece) = run;
    piece.area = {run.x, run.y, run.width, fontPixels(run.font.points) * kTwipsPerPixel};
    piece.linear = readableSigns(run.font.face, run.text);
    piece.spoken = piece.linear;
    return piece;
}

void FormulaShapes::addText(const TextOperation& text) {
    strokes_.clear();
    if (!pieces_.empty() && !pieces_.back().isCaption && isShadow(pieces_.back(), text))
        pieces_.pop_back();
    pieces_.push_back(pieceOf(text));
}

void FormulaShapes::addCaptions(const std::vector<TextOperation>& lines,
                                const LinkOperation& link) {
    strokes_.clear();
    for (const TextOperation& line : lines) {
        TextPiece& piece = pieces_.emplace_back(pieceOf(line));
        piece.isCaption = true;
        piece.tag = link.tag;
    }
}

void FormulaShapes::wipe() {
    strokes_.clear();
    rows_.clear();
    std::erase_if(pieces_, [](const TextPiece& piece) { return !piece.isCaption; });
}

void FormulaShapes::addLine(const LineOperation& line) {
    if (strokes_.size() >= kMostStrokes)
        strokes_.erase(strokes_.begin());
    strokes_.push_back(line);
    if (endsRow() || endsArrow() || endsTallSign() || endsMark())
        return;
    if (endsRoot() || endsFraction())
        strokes_.clear();
}

/// A row draws its upper and lower borders, then the upright ones from left to right.
bool FormulaShapes::endsRow() {
    const Stroke& right = strokes_.back();
    if (!isUpright(right) || right.y1 == right.y2)
        return false;
    std::vector<double> edges;
    auto at = strokes_.rbegin();
    for (; at != strokes_.rend() && isUpright(*at) && near(at->y1, right.y1) &&
           near(at->y2, right.y2);
         ++at)
        edges.push_back(at->x1);
    if (edges.size() < 2 || strokes_.rend() - at < 2)
        return false;
    const Stroke& lower = *at;
    const Stroke& upper = *(at + 1);
    if (!isLevel(lower) || !isLevel(upper) || !near(lower.y1, right.y2) ||
        !near(upper.y1, right.y1) || !near(upper.x1, edges.back()) || !near(upper.x2, right.x1))
        return false;
    std::sort(edges.begin(), edges.end());
    const QRectF box = QRectF(QPointF(upper.x1, upper.y1), QPointF(right.x2, right.y2));
    rows_.push_back({box.normalized(), edges});
    return true;
}

std::size_t FormulaShapes::piecesWithin(double left, double right, double middle,
                                        double bar) const {
    std::size_t count = 0;
    qsizetype text = 0;
    while (count < std::min(pieces_.size(), kMostPieces)) {
        const TextPiece& piece = pieces_[pieces_.size() - 1 - count];
        text += piece.spoken.size();
        if (piece.isCaption || text > kMostText || piece.area.left() < left - kSlack ||
            piece.area.right() > right + kSlack ||
            std::abs(piece.area.center().y() - middle) > kFarthest * piece.area.height())
            break;
        // On either side of the bar the pen went from left to right, from above to below.
        if (count > 0 && startsAnew(piece, pieces_[pieces_.size() - count], bar))
            break;
        ++count;
    }
    return count;
}

TextPiece& FormulaShapes::combine(std::size_t count, double line) {
    const auto first = pieces_.end() - static_cast<std::ptrdiff_t>(count);
    TextPiece whole = *std::max_element(first, pieces_.end(), [](const auto& a, const auto& b) {
        return a.font.points < b.font.points;
    });
    for (auto piece = first; piece != pieces_.end(); ++piece)
        whole.area |= piece->area;
    whole.x = whole.area.left();
    whole.width = whole.area.width();
    whole.y = line;
    whole.isFormula = true;
    pieces_.erase(first, pieces_.end());
    return pieces_.emplace_back(whole);
}

/// Two strokes down and up, then the bar over what stands under the root.
bool FormulaShapes::endsRoot() {
    if (strokes_.size() < 3)
        return false;
    const Stroke* sign = &strokes_[strokes_.size() - 3];
    if (!follows(sign[0], sign[1]) || !follows(sign[1], sign[2]) || !isLevel(sign[2]) ||
        !near(sign[0].x2 - sign[0].x1, sign[1].x2 - sign[1].x1) || sign[0].x2 <= sign[0].x1 ||
        sign[0].y2 <= sign[0].y1)
        return false;
    const std::size_t count = piecesWithin(sign[2].x1, sign[2].x2, sign[0].y1, kFarAbove);
    if (count == 0)
        return false;
    const auto under = onOneSide(pieces_, pieces_.size() - count, kFarAbove, false);
    const auto parts = readLine(under);
    const QString linear = linearText(parts), spoken = spokenText(parts);
    TextPiece& root = combine(count, lineOf(under));
    root.area.setLeft(sign[0].x1);
    root.area.setTop(std::min(root.area.top(), sign[2].y1));
    root.x = sign[0].x1;
    root.width = root.area.width();
    root.linear = u'√' + (isShort(linear) ? linear : u'(' + linear + u')');
    root.spoken = QStringLiteral(" racine de ") + spoken;
    return true;
}

bool FormulaShapes::endsFraction() {
    const Stroke& bar = strokes_.back();
    if (!isLevel(bar) || bar.x2 <= bar.x1)
        return false;
    const std::size_t count = piecesWithin(bar.x1, bar.x2, bar.y1, bar.y1);
    const std::size_t first = pieces_.size() - count;
    const auto above = onOneSide(pieces_, first, bar.y1, true);
    const auto below = onOneSide(pieces_, first, bar.y1, false);
    if (above.empty() || below.empty())
        return false;
    // The bar is as long as the longer of the two: borders of tables leave a margin.
    QRectF area;
    for (std::size_t at = first; at < pieces_.size(); ++at)
        area |= pieces_[at].area;
    if (area.left() > bar.x1 + 4 * kSlack || area.right() < bar.x2 - 4 * kSlack)
        return false;
    const auto upper = readLine(above), lower = readLine(below);
    const QString over = spokenText(upper), under = spokenText(lower);
    const QString linear = QStringLiteral("(%1)/(%2)").arg(linearText(upper), linearText(lower));
    TextPiece& fraction = combine(count, (lineOf(above) + lineOf(below)) / 2);
    fraction.linear = linear;
    // Where a part has several words, a pause tells what belongs to it.
    fraction.spoken = QStringLiteral(" %1%2 sur %3%4")
                          .arg(over, isSimple(over) ? QString() : QStringLiteral(","), under,
                               isSimple(under) ? QString() : QStringLiteral(","));
    return true;
}

/// A bar over a text, or a vector: the two strokes of its point come after the bar.
bool FormulaShapes::endsMark() {
    if (pieces_.empty())
        return false;
    TextPiece& text = pieces_.back();
    const auto isOver = [&](const Stroke& bar) {
        const double rise = text.y - bar.y1;
        const double before = text.x - bar.x1, after = bar.x2 - text.x - text.width;
        return isLevel(bar) && (std::abs(rise - kLowMark) < 1 || std::abs(rise - kHighMark) < 1) &&
               before >= 0 && before < kLongestOverhang && near(before, after);
    };
    if (strokes_.size() == 1 && isOver(strokes_[0])) {
        text.spoken += QStringLiteral(" barre");
        text.linear += u'\u0305';
        return true;
    }
    if (strokes_.size() == 2 && isOver(strokes_[0]) && follows(strokes_[0], strokes_[1])) {
        text.linear = readableSigns(text.font.face, text.text);
        text.spoken = QStringLiteral("vecteur ") + text.linear;
        text.linear += u'\u20D7';
        text.isFormula = true;
        return true;
    }
    return false;
}

bool FormulaShapes::endsTallSign() {
    for (const TallSign& sign : kTallSigns) {
        if (strokes_.size() < sign.strokes)
            return false;
        const auto first = strokes_.end() - static_cast<std::ptrdiff_t>(sign.strokes);
        const double top = first->y1, line = (strokes_.back().y2 - top) / kTall;
        const double end = first->x1;
        double middle = end; // the place furthest from the ends
        bool holds = line > 0 && near(strokes_.back().x2, end) &&
                     isLevel(*first) == sign.isStraight &&
                     (first == strokes_.begin() || !follows(*(first - 1), *first));
        for (auto stroke = first; holds && stroke != strokes_.end(); ++stroke) {
            holds =
                stroke->y2 >= stroke->y1 && (stroke == first || follows(*(stroke - 1), *stroke));
            if (std::abs(stroke->x2 - end) > std::abs(middle - end))
                middle = stroke->x2;
        }
        const double width = std::abs(middle - end);
        if (!holds || width < kSlack || width > kTallWidth * line)
            continue;
        const bool opens = middle < end;
        TextOperation text{};
        if (!pieces_.empty())
            text = pieces_.back();
        text.x = std::min(middle, end);
        text.width = width;
        text.y = top + line / 2;
        text.text = QString::fromUtf16(opens ? sign.opening : sign.closing);
        text.font = {};
        text.font.face = QStringLiteral("Arial");
        text.font.points = std::round(line / kLineOfAPoint);
        TextPiece piece = pieceOf(text);
        piece.spoken = (opens ? QStringLiteral(" ouvrez ") : QStringLiteral(" fermez ")) +
                       QString::fromUtf16(sign.spoken) + u' ';
        piece.isFormula = true;
        pieces_.push_back(piece);
        strokes_.clear();
        return true;
    }
    return false;
}

/// The arrow of a reaction, or the two of an equilibrium.
bool FormulaShapes::endsArrow() {
    const auto stands = [this](const char16_t* sign, const char16_t* words, double axis) {
        const Stroke& shaft = strokes_.front();
        TextOperation arrow{};
        if (!pieces_.empty())
            arrow = pieces_.back();
        const double height = (shaft.x2 - shaft.x1) / kShaft;
        arrow.x = shaft.x1;
        arrow.width = shaft.x2 - shaft.x1;
        arrow.y = axis - kAxis * height;
        arrow.text = QString::fromUtf16(sign);
        arrow.font.face = QStringLiteral("Arial");
        TextPiece piece = pieceOf(arrow);
        piece.linear = u' ' + arrow.text + u' ';
        piece.spoken = QString::fromUtf16(words);
        piece.isFormula = true;
        pieces_.push_back(piece);
        strokes_.clear();
        return true;
    };
    const auto isShaft = [](const Stroke& line) { return isLevel(line) && line.x2 > line.x1; };
    if (strokes_.size() == 3) {
        const Stroke* s = strokes_.data();
        if (isShaft(s[0]) && near(s[1].x2, s[0].x2) && near(s[1].y2, s[0].y2) &&
            follows(s[0], s[2]) && s[1].x1 < s[1].x2 && s[1].y1 < s[1].y2 && s[2].y2 > s[2].y1)
            return stands(u"→", u" donne ", s[0].y1);
    }
    if (strokes_.size() == 4) {
        const Stroke* s = strokes_.data();
        if (isShaft(s[0]) && follows(s[0], s[1]) && isLevel(s[2]) && s[2].x2 < s[2].x1 &&
            follows(s[2], s[3]) && near(s[2].x1, s[0].x2))
            return stands(u"⇌", u" en équilibre avec ", (s[0].y1 + s[2].y1) / 2);
    }
    return false;
}

} // namespace page
