#include "page/voice_words.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace page {

namespace {

struct Sign {
    char16_t sign;
    const char16_t* words;
};

/// What espeak-ng's French voice, heard sign by sign, says nothing of or says in English. It has
/// words for "+", "×", "÷", "±", "%", "°", powers of units and Greek letters.
constexpr std::array kSigns{
    Sign{u'=', u"égale"},
    Sign{u'−', u"moins"},
    Sign{u'<', u"inférieur à"},
    Sign{u'>', u"supérieur à"},
    Sign{u'≤', u"inférieur ou égal à"},
    Sign{u'≥', u"supérieur ou égal à"},
    Sign{u'≈', u"à peu près égal à"},
    Sign{u'≠', u"différent de"},
    Sign{u'∝', u"proportionnel à"},
    Sign{u'→', u"donne"},
    Sign{u'⇔', u"équivaut à"},
    Sign{u'√', u"racine de"},
    Sign{u'∞', u"infini"},
    Sign{u'∈', u"appartient à"},
    Sign{u'∥', u"parallèle à"},
    Sign{u'⟂', u"perpendiculaire à"},
    Sign{u'‰', u"pour mille"},
    Sign{u'′', u"prime"},
    Sign{u'·', u""}, // between units
    Sign{u'•', u""}, // before an item
};

/// Right before a digit and right behind no letter or digit, these are signs of numbers.
const QRegularExpression kMinus(QStringLiteral(R"((?<![\p{L}\p{N}])[-–](?=\p{N}))"));

/// In units behind a number, and in fractions of one letter each; other strokes are no divisions.
const QRegularExpression kPer(QStringLiteral(R"((?<=\p{N} )(\p{L}+)/(?=\p{L}))"));
const QRegularExpression
    kOver(QStringLiteral(R"((?<![\p{L}\p{N}])(\p{N}*\p{L})/(?=\p{N}*\p{L}(?![\p{L}\p{N}])))"));

} // namespace

QString voiceWords(const QString& spoken) {
    QString text = spoken;
    text.replace(u'\u00A0', u' ').replace(u'\u202F', u' ');
    text.replace(kMinus, QStringLiteral("moins "));
    text.replace(kPer, QStringLiteral("\\1 par "));
    text.replace(kOver, QStringLiteral("\\1 sur "));
    QString words;
    for (const QChar letter : std::as_const(text)) {
        const auto sign = std::find_if(kSigns.begin(), kSigns.end(),
                                       [letter](const Sign& one) { return letter == one.sign; });
        if (sign == kSigns.end())
            words += letter;
        else
            words += u' ' + QStringView(sign->words).toString() + u' ';
    }
    return words.simplified();
}

} // namespace page
