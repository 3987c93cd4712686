#include "search/result_words.h"

namespace search {

QString noticeOfNone(bool isCourseRead) {
    return isCourseRead
               ? QStringLiteral("Aucune page trouvée.")
               : QStringLiteral("Aucune page trouvée\u00A0: ce cours ne peut pas être lu.");
}

QString resultWords(const SearchResult& result) {
    QString words =
        QString::number(result.pages) +
        (result.pages == 1 ? QStringLiteral(" page trouvée") : QStringLiteral(" pages trouvées"));
    if (!result.isCourseRead) // there is no room for more
        return words + QStringLiteral(". Une partie du cours ne peut pas être lue.");
    if (result.hidden == result.pages)
        return words + QStringLiteral(", où rien ne se lit.");
    if (result.hidden > 0)
        words += QStringLiteral(", dont ") + QString::number(result.hidden) +
                 QStringLiteral(" où rien ne se lit");
    return words + u'.';
}

} // namespace search
