#include "authoring/typed_answer.h"

#include "exercises/answer_check.h"

#include <algorithm>

namespace authoring {

namespace {

/// Accents that the judge takes off what is typed.
constexpr QStringView kFoldedAccents = u"éèêàùôç";
/// Signs that it makes blanks of though they mean something.
constexpr QStringView kLostSigns = u"+*/,;.!?:";

bool isNumber(QStringView word) {
    return !word.isEmpty() && std::all_of(word.begin(), word.end(), [](QChar c) {
        return c.isDigit() || c == u',' || c == u'.' || c == u'-' || c == QChar(0x2212);
    });
}

/// Accented letters that the judge keeps: whoever types the word without is wrong.
QChar keptAccent(const QString& form) {
    for (const QChar c : form.toLower())
        if (c.unicode() > 127 && c.isLetter() && !kFoldedAccents.contains(c) &&
            c.decompositionTag() == QChar::Canonical)
            return c;
    return {};
}

/// What is wrong with a form by itself; empty when nothing is.
QString trap(const QString& form) {
    if (form.isEmpty())
        return QStringLiteral("il manque la réponse attendue : [fer](réponse)");
    const QStringList words = form.split(u' ', Qt::SkipEmptyParts);
    if (std::any_of(words.begin(), words.end(), [](const QString& w) { return isNumber(w); }))
        return QStringLiteral("« %1 » : le juge cherche un nombre comme un mot, sans voir ni "
                              "virgule ni unité ; poser la question avec des choix")
            .arg(form);
    for (const QChar c : form)
        if (kLostSigns.contains(c))
            return QStringLiteral("« %1 » : le juge ne voit pas le signe « %2 »")
                .arg(form, QString(c));
    for (qsizetype i = 1; i < form.size(); ++i)
        if (form[i].isUpper() && form[i - 1].isLetter())
            return QStringLiteral(
                       "« %1 » : le juge ne distingue pas les majuscules ; « %2 » serait "
                       "juste aussi")
                .arg(form, form.toLower());
    if (const QChar accent = keptAccent(form); !accent.isNull())
        return QStringLiteral("« %1 » : le juge garde l’accent de « %2 » ; qui l’oublie aurait "
                              "faux : choisir un autre mot, ou des choix")
            .arg(form, QString(accent));
    return {};
}

} // namespace

QString solutionOf(const TypedAnswer& answer, Faults& faults) {
    QStringList forms;
    for (const QString& form : answer.forms) {
        forms.append(form.simplified().replace(QChar(0x2019), u'\''));
        if (const QString sentence = trap(forms.back()); !sentence.isEmpty()) {
            faults.add(answer.at, sentence);
            return {};
        }
    }
    // Forms say the same with more words or an ending, so the shortest is the one to look for.
    const QString& shortest =
        *std::min_element(forms.begin(), forms.end(),
                          [](const QString& a, const QString& b) { return a.size() < b.size(); });
    const std::u16string solution =
        exercises::foldedAnswer(std::u16string_view(shortest.toStdU16String()));
    for (const QString& form : forms)
        if (!exercises::castexte(solution, form.toStdU16String()))
            faults.add(answer.at, QStringLiteral("« %1 » : le juge, qui cherche « %2 », le dirait "
                                                 "faux ; il n’admet en plus que s, e, es ou x à la "
                                                 "fin, et d’autres mots autour")
                                      .arg(form, QString::fromStdU16String(solution)));
    return QString::fromStdU16String(solution);
}

} // namespace authoring
