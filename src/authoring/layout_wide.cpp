#include "authoring/formula_setter.h"
#include "authoring/layout.h"
#include "authoring/targets.h"
#include "authoring/typography.h"
#include "page/twips.h"

#include <cmath>

// What takes the column's whole width: formulas on lines of their own, pictures, menus.

namespace authoring {

namespace {

using page::kTwipsPerPixel;

constexpr int kFormulaPoints = 14;
// The frame of a formula: its line, and the room around it, in pixels.
constexpr int kFormulaLine = 22;
constexpr int kFormulaPad = 9;
constexpr int kFormulaSlack = 3; // what the line spacing leaves anyway
constexpr int kFormulaSides = 22;
constexpr int kBelowFormula = 4;
constexpr int kAroundFormula = 3;

constexpr int kAbovePicture = 6;
constexpr int kCaptionPoints = 10;
/// A screen reader says no more of one.
constexpr qsizetype kLongestDescription = 500;
/// Menus that a page can fill: the first pictures with links.
constexpr int kLastMenu = 20;
constexpr qsizetype kMenuEntries = 10;

int pixels(double twips) {
    return static_cast<int>(std::ceil(twips / kTwipsPerPixel));
}

/// "figure.svg#300x200": the file, and the size if one is given.
struct PictureName {
    QString file;
    int width = 0;
    int height = 0;
    bool wrong = false;
};

PictureName pictureName(const QString& target) {
    const qsizetype sharp = target.lastIndexOf(u'#');
    if (sharp < 0)
        return {target};
    const QStringList size = target.mid(sharp + 1).split(u'x');
    PictureName name{target.first(sharp)};
    bool wide = false;
    bool high = false;
    name.width = size.front().toInt(&wide);
    name.height = size.back().toInt(&high);
    const auto fits = [](int length) { return length > 0 && length <= 999; };
    name.wrong = size.size() != 2 || !wide || !high || !fits(name.width) || !fits(name.height);
    return name;
}

} // namespace

void Layout::displayFormula(const Inline& formula, bool framed) {
    Style style = style_;
    style.points = place_ == Place::Margin ? style_.points : kFormulaPoints;
    FormulaText source(formula.text, formula.at, texts_.faults);
    InlineText text;
    setFormula(readFormula(source), source, style, texts_.ruler, text);
    if (text.atoms.empty())
        return fault(formula.at, u"cette formule est vide");
    const int room = column_.width() - (framed ? 2 * kFormulaSides : 0);
    const std::vector<TextLine> lines = breakLines(text, room, texts_.ruler, texts_.faults);
    leave(Flow::Wide, framed ? "0.1" : "0.2");
    writer_.comesFrom(formula.at);
    writer_.style(style_);
    if (lines.size() > 1)
        return severalLines(lines, framed);
    const TextLine& line = lines.front();
    const int pad =
        kFormulaPad + std::max({line.rise - kFormulaSlack, line.drop - kFormulaSlack, 0});
    const int width = pixels(line.width);
    if (framed)
        frameOfFormula(width, kFormulaLine, pad);
    else
        writer_.movePenY(kAroundFormula + line.rise);
    writer_.penX(column_.left + std::max(0, (column_.width() - width) / 2));
    for (const Piece& piece : line.pieces)
        writer_.piece(piece);
    writer_.style(style_);
    writer_.movePenY(framed ? kFormulaLine + pad + kBelowFormula
                            : kFormulaLine + kAroundFormula + line.drop);
    writer_.penX(column_.penLeft);
}

/// The house's blue frame around `inside` pixels of lines; the pen goes to the first of them.
void Layout::frameOfFormula(int width, int inside, int pad) {
    writer_.movePenY(kAbovePicture);
    Style ink = style_;
    ink.ink = kTitleInk;
    writer_.style(ink);
    writer_.penX(column_.left + std::max(0, (column_.width() - width) / 2 - kFormulaSides));
    writer_.directive(QStringLiteral("##LARGEUR") +
                      threeDigits(std::min(column_.width(), width + 2 * kFormulaSides)));
    writer_.directive(QStringLiteral("##RECT") + threeDigits(2 * pad + inside));
    writer_.movePenY(pad);
}

/// A formula that is wider than the column.
void Layout::severalLines(const std::vector<TextLine>& lines, bool framed) {
    int inside = 0;
    double widest = 0;
    for (const TextLine& line : lines) {
        inside += kFormulaLine + std::max(0, line.rise - kFormulaSlack) +
                  std::max(0, line.drop - kFormulaSlack);
        widest = std::max(widest, line.width);
    }
    if (framed)
        frameOfFormula(pixels(widest), inside, kFormulaPad);
    else
        writer_.movePenY(kAroundFormula);
    writer_.style(style_);
    // The frame leaves the pen at its left edge.
    Column anywhere = column_;
    anywhere.penLeft = -1;
    writeLines(writer_, lines, framed ? anywhere : column_, Placed::Centre, style_);
    writer_.movePenY(framed ? kFormulaPad + kBelowFormula : kAroundFormula);
}

void Layout::picture(const Inline& picture) {
    if (picture.target.endsWith(QStringLiteral(".avi"), Qt::CaseInsensitive))
        return; // the page's film, named at its head
    const PictureName name = pictureName(picture.target);
    if (name.file.isEmpty() || name.wrong)
        return fault(picture.at, u"une image se nomme par son fichier, puis, pour l’étirer, sa "
                                 u"taille en pixels : figure.svg#300x200");
    for (const char* ending : {".mp4", ".mov", ".mpg", ".mpeg", ".wmv", ".mkv", ".webm"})
        if (name.file.endsWith(QLatin1String(ending), Qt::CaseInsensitive))
            fault(picture.at, u"un film est un fichier AVI : le convertir");
    describe(picture, name.file);
    leave(Flow::Wide, "0.2");
    writer_.comesFrom(picture.at);
    writer_.style(style_);
    writer_.movePenY(kAbovePicture);
    writer_.directive(QStringLiteral("##ALCE"));
    if (name.width > 0)
        writer_.directive(QStringLiteral("##IHDEF") + name.file + threeDigits(name.width) +
                          threeDigits(name.height));
    else
        writer_.directive(QStringLiteral("##IXA") + name.file);
    writer_.directive(QStringLiteral("##ALGA"));
    Style small = style_;
    small.points = std::min(style_.points, kCaptionPoints);
    const InlineText caption = flatten(picture.children, small, texts_);
    if (caption.atoms.empty())
        return writer_.penX(column_.penLeft);
    writer_.movePenY(2);
    // The pen stands under the picture's left edge, wherever that is.
    Column anywhere = column_;
    anywhere.penLeft = -1;
    writeLines(writer_, breakLines(caption, column_.width(), texts_.ruler, texts_.faults), anywhere,
               Placed::Centre, small);
}

/// The words in quotes behind a picture's file.
void Layout::describe(const Inline& picture, const QString& file) {
    if (picture.title.isEmpty())
        return;
    const Inline title{Inline::Kind::Text, picture.at, picture.title, {}, {}};
    const QString words = captionOf({title}, texts_).simplified();
    if (words.size() > kLongestDescription)
        fault(picture.at, u"une description d’image a cinq cents caractères au plus");
    const Fault place = texts_.faults.place(picture.at);
    const qsizetype folder = std::max(file.lastIndexOf(u'/'), file.lastIndexOf(u'\\'));
    texts_.descriptions.push_back(
        {file.mid(folder + 1).toStdString(), words.toStdString(), place.line, place.column});
}

QStringList Layout::menuEntries(const Inline& menu, const Block* entries) {
    QStringList lines;
    if (!entries || entries->kind != Block::Kind::List) {
        fault(menu.at, u"après un menu vient la liste des liens qu’il ouvre");
        return lines;
    }
    skipNext_ = true;
    for (const Block& item : entries->children) {
        const bool paragraph =
            item.children.size() == 1 && item.children.front().kind == Block::Kind::Paragraph;
        const std::vector<Inline>* inlines = paragraph ? &item.children.front().inlines : nullptr;
        if (!inlines || inlines->size() != 1 || inlines->front().kind != Inline::Kind::Link) {
            fault(item.at, u"un point de la liste d’un menu est un lien, et rien d’autre");
            continue;
        }
        const Inline& link = inlines->front();
        if (!link.title.isEmpty())
            fault(link.at, u"un choix de menu n’a pas de bulle");
        const QString caption = captionOf(link.children, texts_);
        if (const auto target = readTarget(link.target, link.at, texts_.faults))
            lines.append(QStringLiteral("##ADMEN") + caption + u'#' + target->code());
    }
    if (lines.size() > kMenuEntries)
        fault(menu.at, u"un menu a dix choix au plus");
    return lines;
}

void Layout::menu(const Inline& menu, const Block* entries) {
    const auto key = readKey(menu.target, u"menu:", menu.at, texts_.faults);
    if (!menu.title.isEmpty())
        fault(menu.at, u"un menu n’a pas de bulle : son titre se met entre les crochets");
    Label label{column_.left, {}};
    label.box = symbolBox(QStringLiteral("##LIERF") + key.value_or(QStringLiteral("ME")), style_);
    const QStringList lines = menuEntries(menu, entries);
    // The entries follow their symbol.
    for (qsizetype i = lines.size(); i-- > 0;)
        label.box.pieces.insert(label.box.pieces.begin() + 2, {style_, lines[i], true, 0});
    if (texts_.question || texts_.pictureLinks++ > kLastMenu)
        fault(menu.at, u"un menu flottant ne va que dans une page, parmi ses vingt et un premiers "
                       u"liens à symbole");
    const Column before = column_;
    column_ = column_.indented(28);
    text(menu.children, &label);
    column_ = before;
}

} // namespace authoring
