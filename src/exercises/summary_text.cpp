#include "exercises/summary_text.h"

#include "exercises/choices.h"
#include "exercises/field_texts.h"
#include "page/readable_text.h"

#include <QStringList>
#include <QUrl>

namespace exercises {

namespace {

/// A question's first line is cut behind this many characters: it is only to be recognised by it.
constexpr int kLongestAsked = 160;
constexpr int kMarkPx = 16;

QString firstLine(const QString& text) {
    const QStringList lines = text.split(u'\n');
    for (const QString& line : lines) {
        const QString words = line.simplified();
        if (words.size() > kLongestAsked)
            return words.left(kLongestAsked) + u'…';
        if (!words.isEmpty())
            return words;
    }
    return {};
}

/// The words of some of the choices.
template <class IsOneOfThem>
QString choiceWords(const markup::DrawnPage& drawn, int type, const IsOneOfThem& isOneOfThem) {
    const auto& choices = type == 1 ? drawn.fields.Check1 : drawn.fields.Option1;
    QStringList words;
    for (int i = 0; i < kChoices; ++i) {
        const markup::AnswerFields::Field& choice = *choices.slot(i);
        if (!choice.visible || !isOneOfThem(i))
            continue;
        const QString beside = textRightOf(choice.place, drawn.fields, drawn.recording).text;
        words.append(beside.isEmpty() ? QStringLiteral("choix %1").arg(i + 1) : beside);
    }
    return words.join(QStringLiteral("\u00A0; "));
}

void setAnswers(const WrongAnswer& answer, const markup::DrawnPage& drawn, SummaryEntry& entry) {
    if (answer.type == 1 || answer.type == 2) {
        entry.given =
            choiceWords(drawn, answer.type, [&](int i) { return isSelectedIn(answer.given, i); });
        entry.expected = choiceWords(drawn, answer.type, [&](int i) {
            return markOf(answer.solution, i) == Mark::InSolution;
        });
    } else {
        entry.given = QString::fromStdU16String(answer.given).simplified();
        entry.expected = QString::fromStdU16String(answer.solution).simplified();
    }
}

QString markHtml(const QString& name) {
    const QString side = QString::number(kMarkPx);
    return QStringLiteral("<img src=\"mark:") + name + QStringLiteral("\" width=\"") + side +
           QStringLiteral("\" height=\"") + side +
           QStringLiteral("\" style=\"vertical-align: middle\"> ");
}

QString linkHtml(const QString& kind, const QString& target, const QString& words) {
    return QStringLiteral("<a href=\"") + kind + u':' +
           QString::fromLatin1(QUrl::toPercentEncoding(target)) + QStringLiteral("\">") +
           words.toHtmlEscaped() + QStringLiteral("</a>");
}

QString entryHtml(const SummaryEntry& entry) {
    const auto orNone = [](const QString& words) {
        return words.isEmpty() ? QStringLiteral("<i>aucune</i>") : words.toHtmlEscaped();
    };
    const QString number = QString::number(entry.question);
    QString html =
        QStringLiteral("<p style=\"margin-top:14px; margin-bottom:2px\">") +
        linkHtml(QStringLiteral("question"), number, QStringLiteral("Question\u00A0") + number);
    if (!entry.asked.isEmpty())
        html += QStringLiteral(" – ") + entry.asked.toHtmlEscaped();
    const QString line = QStringLiteral("</p><p style=\"margin-left:16px; margin-top:2px; "
                                        "margin-bottom:2px\">");
    html += line + markHtml(QStringLiteral("wrong")) + QStringLiteral("Votre réponse\u00A0: ") +
            orNone(entry.given);
    html += line + markHtml(QStringLiteral("right")) + QStringLiteral("Bonne réponse\u00A0: <b>") +
            orNone(entry.expected) + QStringLiteral("</b>");
    if (!entry.page.isEmpty())
        html += line + linkHtml(QStringLiteral("page"), entry.page, entry.pageCaption);
    return html + QStringLiteral("</p>");
}

} // namespace

SummaryEntry summaryEntry(const WrongAnswer& answer, const markup::DrawingTools& tools) {
    const auto drawnOf = [&](const std::u16string& source) {
        return markup::drawPage({QString::fromStdU16String(source), markup::DrawnAs::Question},
                                tools);
    };
    SummaryEntry entry;
    entry.question = answer.question;
    entry.asked =
        firstLine(page::readableText(drawnOf(answer.asked).recording, page::SurfaceId::Picture2));
    const markup::DrawnPage drawn = drawnOf(answer.asked + answer.siFaux);
    setAnswers(answer, drawn, entry);
    const auto& link = drawn.fields.Labelien;
    if (link.visible) {
        entry.page = link.place.tag;
        entry.pageCaption = link.place.caption.simplified();
    }
    if (entry.pageCaption.isEmpty())
        entry.pageCaption = QStringLiteral("page du cours");
    return entry;
}

QString summaryHtml(const std::vector<SummaryEntry>& wrong, const Counts& counts) {
    QString html = QStringLiteral("<p><b>");
    if (wrong.empty())
        return html + markHtml(QStringLiteral("right")) +
               QStringLiteral("Toutes vos réponses sont justes.</b></p>");
    html +=
        QString::number(counts.right) +
        (counts.right < 2 ? QStringLiteral(" réponse juste") : QStringLiteral(" réponses justes")) +
        QStringLiteral(" sur ") + QString::number(counts.answered) +
        QStringLiteral(".</b> À revoir\u00A0:</p>");
    for (const SummaryEntry& entry : wrong)
        html += entryHtml(entry);
    return html;
}

} // namespace exercises
