#include "check/directive_checks.h"

#include "check/directive_shape.h"
#include "check/suggestion.h"
#include "markup/arguments.h"

#include <algorithm>

namespace check {

namespace {

using markup::Argument;

std::string named(const Line& line) {
    return coursetool::inQuotes("##" + line.what->keyword.toString().toStdString());
}

QString withMark(const QString& directive) {
    return QStringLiteral("##") + directive;
}

/// A sign of its own after a letter or nothing, so that "INDICE" is seen and "INDNa" is not.
bool isWordOfCapitals(QStringView text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isUpper(); });
}

} // namespace

void unknownDirective(const Source& source, const Line& line, Findings& findings) {
    if (!line.isDirective || line.what || line.wholeAhead)
        return;
    std::string sentence = quoted(line.text) + " n’est pas une directive : rien ne se passe";
    const auto meant = suggestionFor(line.directive);
    if (!meant)
        return findings.add(source, line.number, std::move(sentence));
    sentence += " ; vouliez-vous dire " + quoted(withMark(meant->directive)) + " ?";
    findings.add(source, line, std::move(sentence), withMark(meant->directive), meant->isCertain);
}

void wholeDirectiveWithMore(const Source& source, const Line& line, Findings& findings) {
    const markup::Directive* const form = line.wholeAhead;
    if (!form)
        return;
    const QString keyword = withMark(form->keyword.toString());
    const bool onlyBlanks = line.directive.sliced(form->keyword.size()).trimmed().isEmpty();
    findings.add(source, line,
                 quoted(keyword) + " se tient seul sur sa ligne : avec " +
                     (onlyBlanks ? "un blanc" : "un texte") + " derrière lui, il ne compte pas",
                 keyword, onlyBlanks);
}

void textAfterBareDirective(const Source& source, const Line& line, Findings& findings) {
    if (!line.what || line.what->argument != Argument::None || line.wholeAhead)
        return;
    const QStringView rest = line.argument();
    if (!rest.trimmed().isEmpty())
        findings.add(source, line.number,
                     quoted(rest) + " ne se verra pas : " + named(line) +
                         " ne lit rien de ce qui le suit ; l’écrire à la ligne",
                     line.what->keyword.size() + 2);
}

// Numbers in the last characters. A directive that is a word of its own is an accident, not a
// number gone wrong.

namespace {

bool isAccident(const Line& line) {
    const QStringView rest = line.argument();
    return (line.what->argument == Argument::Number || line.what->argument == Argument::Cell) &&
           !rest.isEmpty() && rest.front().isLetter();
}

bool isNumber(const Line& line) {
    return line.what && line.what->argument == Argument::Number && !isAccident(line) &&
           !line.wholeAhead;
}

bool isNumeralOf(const markup::Columns& columns, QStringView text) {
    return isNumeral(text.trimmed(), columns.lowest < 0, columns.isFraction);
}

/// A numeral with as many characters as its columns ask for.
QString padded(const markup::Columns& columns, QString digits) {
    digits = digits.trimmed();
    if (columns.isFraction) {
        if (!digits.contains(u'.') && digits.size() < columns.count)
            digits += u'.';
        return digits.leftJustified(columns.count, u'0');
    }
    const QString sign = digits.startsWith(u'-') || digits.startsWith(u'+') ? digits.left(1) : "";
    return sign + digits.mid(sign.size()).rightJustified(columns.count - sign.size(), u'0');
}

double valueRead(const Line& line) {
    return markup::lastNumber(line.directive, line.what->columns.count);
}

QString numberWords(double value) {
    return QString::number(value);
}

} // namespace

void tooFewDigits(const Source& source, const Line& line, Findings& findings) {
    if (line.what && line.what->argument == Argument::Cell && !isAccident(line) &&
        !isWellShaped(line.directive))
        return findings.add(source, line.number,
                            quoted(line.text) +
                                " : une cellule veut son bord gauche et son bord droit sur trois "
                                "chiffres, puis son numéro, « ##TAB010200 1 »");
    if (line.what && line.what->argument == Argument::SizedFile &&
        !isNumeral(markup::lastCharacters(line.argument(), markup::kPictureSizeLength), false,
                   false))
        return findings.add(source, line.number,
                            quoted(line.text) +
                                " : la largeur et la hauteur manquent, trois chiffres chacune");
    if (!isNumber(line))
        return;
    const markup::Columns& columns = line.what->columns;
    const QStringView rest = line.argument();
    if (rest.size() >= columns.count)
        return;
    std::string sentence = quoted(line.text) + " : il faut " + std::to_string(columns.count) +
                           " chiffres" + (columns.isFraction ? " ou signes" : "") +
                           ", ceci se lit " + numberWords(valueRead(line)).toStdString();
    if (!isNumeralOf(columns, rest))
        return findings.add(source, line.number, std::move(sentence));
    const QString meant =
        withMark(line.what->keyword.toString() + padded(columns, rest.toString()));
    findings.add(source, line, sentence + " ; écrire " + quoted(meant), meant, true);
}

void tooManyDigits(const Source& source, const Line& line, Findings& findings) {
    if (!isNumber(line))
        return;
    const markup::Columns& columns = line.what->columns;
    const QStringView rest = line.argument();
    if (rest.size() <= columns.count || !isNumeralOf(columns, rest))
        return;
    const double whole = page::leadingNumber(rest);
    if (whole != valueRead(line))
        findings.add(source, line.number,
                     quoted(line.text) + " : seuls les " + std::to_string(columns.count) +
                         " derniers caractères comptent, ceci se lit " +
                         numberWords(valueRead(line)).toStdString());
}

void notANumber(const Source& source, const Line& line, Findings& findings) {
    const bool isFactor = line.what && line.what->argument == Argument::Factor;
    if (!isFactor && !isNumber(line))
        return;
    const QStringView rest = line.argument();
    const bool good =
        isFactor ? isNumeral(rest.trimmed(), true, true) : isNumeralOf(line.what->columns, rest);
    if (good || rest.trimmed().isEmpty() || (!isFactor && rest.size() < line.what->columns.count))
        return;
    const double value = isFactor ? page::leadingNumber(rest) : valueRead(line);
    std::string sentence = quoted(line.text) + " : ce n’est pas un nombre, ceci se lit " +
                           numberWords(value).toStdString();
    const QString withPoint = rest.toString().replace(u',', u'.');
    const bool comma = rest.contains(u',') && isNumeral(withPoint.trimmed(), true, true);
    if (!comma)
        return findings.add(source, line.number, std::move(sentence));
    const QString meant = withMark(line.what->keyword.toString() + withPoint);
    findings.add(source, line, sentence + " ; le signe décimal est le point", meant, true);
}

void factorOfZero(const Source& source, const Line& line, Findings& findings) {
    if (!line.what)
        return;
    const bool isFactor = line.what->argument == Argument::Factor;
    const bool isScale = isNumber(line) && line.what->columns.lowest > 0 &&
                         line.argument().size() >= line.what->columns.count;
    if (!isFactor && !isScale)
        return;
    const QStringView rest = line.argument();
    if (!rest.trimmed().isEmpty() && !isNumeral(rest.trimmed(), true, true))
        return;
    const double value = isFactor ? page::leadingNumber(rest) : valueRead(line);
    if (value == 0)
        findings.add(source, line.number, quoted(line.text) + " se lit 0");
}

void valueWithoutEffect(const Source& source, const Line& line, Findings& findings) {
    if (!isNumber(line) || line.argument().size() < line.what->columns.count ||
        !isNumeralOf(line.what->columns, line.argument()))
        return;
    const markup::Columns& columns = line.what->columns;
    const double value = valueRead(line);
    if (value != 0 && (value < columns.lowest || value > columns.highest))
        findings.add(source, line.number,
                     quoted(line.text) + " ne fait rien : les valeurs vont de " +
                         numberWords(columns.lowest).toStdString() + " à " +
                         numberWords(columns.highest).toStdString());
}

void prefixAccident(const Source& source, const Line& line, Findings& findings) {
    if (!line.what || line.wholeAhead)
        return;
    // Words that people write for the keyword they begin with.
    static constexpr QStringView kWords[] = {u"INDICE",  u"EXPOSANT", u"IMAGE",
                                             u"TABLEAU", u"FRACTION", u"POLYGONE"};
    const bool isWord = std::any_of(std::begin(kWords), std::end(kWords), [&](QStringView word) {
        return line.directive.front() == word.front() && line.directive.startsWith(word) &&
               isWordOfCapitals(line.directive.first(word.size())) &&
               (line.directive.size() == word.size() || !line.directive[word.size()].isLower());
    });
    // Of what begins with "C", one directive is more than an ink.
    if (!isWord && !isAccident(line))
        return;
    std::string sentence =
        quoted(line.text) + " compte comme " + named(line) + ", par lequel cela commence";
    const auto meant = suggestionFor(line.directive);
    if (meant && meant->directive != line.directive)
        sentence += " ; vouliez-vous dire " + quoted(withMark(meant->directive)) + " ?";
    findings.add(source, line.number, std::move(sentence));
}

void missingSharp(const Source& source, const Line& line, Findings& findings) {
    if (!line.what)
        return;
    const Argument kind = line.what->argument;
    const bool hasHalves = kind == Argument::Halves || kind == Argument::Link ||
                           kind == Argument::TippedLink || kind == Argument::PageLink;
    if (hasHalves && !markup::splitAtLastSharp(line.directive, line.what->keyword.size()))
        findings.add(source, line.number,
                     quoted(line.text) + " ne fait rien : il manque « # » et ce qui le suit");
}

void missingArgument(const Source& source, const Line& line, Findings& findings) {
    if (!line.what)
        return;
    const auto parts = markup::splitAtLastSharp(line.directive, line.what->keyword.size());
    const QStringView rest = line.argument();
    const char* lacking = nullptr;
    switch (line.what->argument) {
    case Argument::Text:
    case Argument::File:
        lacking = rest.trimmed().isEmpty() ? "il manque ce qui doit suivre" : nullptr;
        break;
    case Argument::SizedFile:
        lacking =
            rest.size() <= markup::kPictureSizeLength ? "il manque le nom du fichier" : nullptr;
        break;
    case Argument::Link:
        lacking = parts && parts->before.trimmed().isEmpty() ? "le lien n’a pas de texte : "
                                                               "personne ne le verra"
                                                             : nullptr;
        break;
    case Argument::KeyedLink:
        lacking = rest.size() <= markup::kKeyLength ? "il faut une clé de deux caractères, puis "
                                                      "la cible"
                                                    : nullptr;
        break;
    case Argument::TippedLink:
        lacking = parts && parts->before.size() <= markup::kKeyLength
                      ? "il faut une clé de deux caractères, puis la bulle d’aide"
                      : nullptr;
        break;
    default:
        break;
    }
    if (lacking)
        findings.add(source, line.number, quoted(line.text) + " : " + lacking);
}

void wrongSigns(const Source& source, const Line& line, Findings& findings) {
    if (!line.what)
        return;
    const QStringView rest = line.argument();
    if (line.what->argument == Argument::Signs && rest.size() != 2)
        findings.add(source, line.number,
                     quoted(line.text) +
                         " : il faut deux signes, celui du bas et celui du haut ; seuls comptent "
                         "le premier et le dernier");
    if (line.what->argument == Argument::Key && rest.size() != markup::kKeyLength)
        findings.add(source, line.number,
                     quoted(line.text) + " : une clé de symbole a deux caractères, ici comptent " +
                         quoted(markup::lastCharacters(line.directive, markup::kKeyLength)));
    if (line.what->argument != Argument::Shadow)
        return;
    const QStringView width = markup::characterAt(line.directive, markup::kShadowWidthAt);
    const QStringView colour = markup::lastCharacters(line.directive, markup::kPaletteNumber.count);
    const bool isOff = width == u"0";
    if (!isNumeral(width, false, false) ||
        (!isOff &&
         (rest.size() <= markup::kPaletteNumber.count || !isNumeral(colour, false, false) ||
          page::leadingNumber(colour) > markup::kPaletteNumber.highest)))
        findings.add(source, line.number,
                     quoted(line.text) + " : écrire le décalage, un chiffre, puis la couleur, deux "
                                         "chiffres de 00 à 15, « ##RELIEF2 07 »");
}

void unknownSurface(const Source& source, const Line& line, Findings& findings) {
    if (!line.what || line.what->argument != Argument::Surface)
        return;
    static constexpr QStringView kNames[] = {markup::kTitleName, markup::kIllustrationName,
                                             markup::kColumnName, markup::kHeightName};
    const QStringView rest = line.argument();
    if (std::find(std::begin(kNames), std::end(kNames), rest) != std::end(kNames))
        return;
    const auto nearest =
        std::min_element(std::begin(kNames), std::end(kNames), [&](QStringView a, QStringView b) {
            return distance(rest.toString().toUpper(), a) < distance(rest.toString().toUpper(), b);
        });
    const QString meant = withMark(line.what->keyword.toString() + nearest->toString());
    findings.add(source, line,
                 quoted(line.text) +
                     " ne désigne aucune surface, et remet pourtant les styles au début ; "
                     "vouliez-vous dire " +
                     quoted(meant) + " ?",
                 meant, rest.trimmed() == *nearest);
}

void misplacedMark(const Source& source, const Line& line, Findings& findings) {
    if (line.isDirective)
        return;
    const QStringView text = line.text.trimmed();
    const bool afterBlanks = text.startsWith(u"##") && isWellShaped(text.sliced(2));
    const bool halfMark = text.startsWith(u'#') && !text.startsWith(u"##") && text.size() > 3 &&
                          isWellShaped(text.sliced(1));
    if (!afterBlanks && !halfMark)
        return;
    const QString meant = (halfMark ? QStringLiteral("#") : QString()) + text.toString();
    findings.add(source, line,
                 quoted(line.text) + " se verra comme un texte : une directive commence sa ligne "
                                     "par « ## »",
                 meant, false);
}

void directiveElsewhere(const Source& source, const Line& line, Findings& findings) {
    if (!line.what)
        return;
    const bool isPage = source.kind() == Source::Kind::Page;
    if (isPage && line.what->use == markup::Use::Questions)
        findings.add(source, line.number,
                     named(line) + " ne fait rien dans une page : il place un champ de question");
    if (!isPage && line.what->use == markup::Use::Pages)
        findings.add(source, line.number,
                     named(line) + (line.what->argument == Argument::Text ||
                                            line.what->argument == Argument::File
                                        ? " ne fait rien dans une question"
                                        : " n’est pas un lien dans une question, seulement son "
                                          "texte ou son symbole : écrire ##EXOLI"));
}

} // namespace check
