#include "page/spoken_line.h"

#include "page/text_lines.h"

#include <algorithm>
#include <cmath>

namespace page {

namespace {

/// Twips a point from which a run that is no larger counts as an index or exponent. Pages shift
/// theirs by 6; what stands on the line to the naked eye is less than this away.
constexpr double kLeastShift = 2.5;

enum class Level { Line, Index, Exponent };

Level levelOf(const TextPiece& piece, const TextPiece& line) {
    const double shift = piece.y - line.y;
    if (piece.isFormula || piece.font.points > line.font.points ||
        std::abs(shift) < kLeastShift * line.font.points)
        return Level::Line;
    return shift > 0 ? Level::Index : Level::Exponent;
}

bool isDigits(const QString& text) {
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
}

/// Whether a text ends with the symbol of an element, or what brackets hold some.
bool endsWithElement(const QString& text) {
    const qsizetype last = text.size() - 1;
    if (last < 0)
        return false;
    const auto isUpper = [&](qsizetype at) { return text[at].isUpper() && text[at] <= u'Z'; };
    return text[last] == u')' || text[last] == u']' || isUpper(last) ||
           (last > 0 && text[last].isLower() && isUpper(last - 1));
}

/// Charges of ions: "+", "2−".
bool isCharge(const QString& text) {
    const QString digits = text.chopped(1);
    return !text.isEmpty() && QStringLiteral("+-−–").contains(text.back()) &&
           (digits.isEmpty() || isDigits(digits));
}

QString spokenCharge(const QString& text) {
    return (text.size() > 1 ? text.chopped(1) + u' ' : QString()) +
           (text.back() == u'+' ? QStringLiteral("plus") : QStringLiteral("moins"));
}

/// "1er", "2e", "Mme": letters that were only raised.
bool isWordEnd(const QString& before, const QString& text) {
    static const QStringList ends{
        QStringLiteral("er"),  QStringLiteral("re"), QStringLiteral("e"),   QStringLiteral("ère"),
        QStringLiteral("ème"), QStringLiteral("me"), QStringLiteral("lle"), QStringLiteral("o")};
    return !before.isEmpty() && before.back().isDigit() && ends.contains(text);
}

QString keyboardSigns(QString text) {
    return text.replace(u'−', u'-').replace(u'–', u'-');
}

/// Whether it can follow "^" without brackets: a number or a name, with a sign before or after.
bool isOneWord(const QString& text) {
    return std::all_of(text.begin(), text.end(), [&](const QChar& c) {
        const bool atEdge = &c == text.begin() || &c + 1 == text.end();
        return c.isLetterOrNumber() || c == u',' || c == u'.' || c == u'\'' ||
               (atEdge && QStringLiteral("+-*").contains(c));
    });
}

class Reader {
public:
    std::vector<LinePart> read(const std::vector<const TextPiece*>& pieces) {
        const TextPiece* line = tallest(pieces);
        for (std::size_t at = 0; at < pieces.size();) {
            const bool apart = !parts_.empty() && isApart(*pieces[at], end_);
            const Level level = apart ? Level::Line : levelOf(*pieces[at], *line);
            std::size_t behind = at + 1;
            if (level == Level::Line) {
                addPlain(*pieces[at], apart);
                if (!pieces[at]->text.trimmed().isEmpty())
                    line = pieces[at];
            } else {
                while (behind < pieces.size() && levelOf(*pieces[behind], *line) == level &&
                       !isApart(*pieces[behind], endOf(*pieces[behind - 1])))
                    ++behind;
                addShifted({pieces.begin() + static_cast<std::ptrdiff_t>(at),
                            pieces.begin() + static_cast<std::ptrdiff_t>(behind)},
                           level);
            }
            end_ = endOf(*pieces[behind - 1]);
            at = behind;
        }
        return std::move(parts_);
    }

private:
    static double endOf(const TextPiece& piece) { return piece.x + piece.width; }

    static const TextPiece* tallest(const std::vector<const TextPiece*>& pieces) {
        const auto smaller = [](const auto* a, const auto* b) {
            return a->font.points < b->font.points;
        };
        return pieces.empty() ? nullptr : *std::max_element(pieces.begin(), pieces.end(), smaller);
    }

    void addPlain(const TextPiece& piece, bool apart) {
        const bool spaced =
            (!before_.isEmpty() && before_.back().isSpace()) || piece.linear.startsWith(u' ');
        const QString blank = apart && !spaced ? QStringLiteral(" ") : QString();
        // Letters right after an index are a word of their own when they are spoken.
        const bool joined = wasShifted_ && !piece.spoken.isEmpty() &&
                            piece.spoken.front().isLetterOrNumber() && blank.isEmpty();
        add(piece, blank + piece.linear, (joined ? QStringLiteral(" ") : blank) + piece.spoken);
        wasShifted_ = piece.isFormula;
        isSlanted_ = piece.font.italic;
    }

    void addShifted(const std::vector<const TextPiece*>& pieces, Level level) {
        QString content;
        for (const TextPiece* piece : pieces)
            content += piece->linear;
        content = content.trimmed();
        const QString base = before_.trimmed();
        QString opening, words, spoken = content;
        if (content.isEmpty() || (level == Level::Exponent && isWordEnd(base, content)) ||
            (level == Level::Index && isDigits(content) && !isSlanted_ && endsWithElement(base))) {
            words = wasShifted_ || !isDigits(content) ? QString() : QStringLiteral(" ");
        } else {
            opening = level == Level::Index ? QStringLiteral("_") : QStringLiteral("^");
            if (level == Level::Exponent && isCharge(content) && isAfterAtoms(base)) {
                words = QStringLiteral(" ");
                spoken = spokenCharge(content);
            } else {
                words = level == Level::Index ? QStringLiteral(" indice ")
                                              : QStringLiteral(" puissance ");
            }
        }
        const bool bracketed = !opening.isEmpty() && !isOneWord(keyboardSigns(content));
        const QString linear = level == Level::Exponent ? keyboardSigns(content) : content;
        add(*pieces.front(), opening + (bracketed ? u'(' + linear + u')' : linear), words + spoken);
        for (std::size_t i = 1; i < pieces.size(); ++i)
            parts_.push_back({pieces[i], {}, {}});
        wasShifted_ = true;
    }

    bool isAfterAtoms(const QString& base) const {
        qsizetype letters = base.size();
        while (letters > 0 && base[letters - 1].isDigit())
            --letters;
        return !isSlanted_ && endsWithElement(base.first(letters));
    }

    void add(const TextPiece& piece, const QString& linear, const QString& spoken) {
        parts_.push_back({&piece, linear, spoken});
        before_ += linear;
    }

    std::vector<LinePart> parts_;
    QString before_; ///< linear, up to here
    double end_ = 0;
    bool wasShifted_ = false;
    bool isSlanted_ = false;
};

} // namespace

std::vector<LinePart> readLine(const std::vector<const TextPiece*>& pieces) {
    return Reader().read(pieces);
}

QString linearText(const std::vector<LinePart>& parts) {
    QString text;
    for (const LinePart& part : parts)
        text += part.linear;
    return text.simplified();
}

QString spokenText(const std::vector<LinePart>& parts) {
    QString text;
    for (const LinePart& part : parts)
        text += part.spoken;
    return text.simplified();
}

} // namespace page
