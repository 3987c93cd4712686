#include "viewer/link_name.h"

#include "page/sign_faces.h"
#include "viewer/page_code.h"

#include <QStringList>

namespace viewer {

namespace {

QString meaningOf(const QString& tag) {
    struct Row {
        const char16_t* prefix;
        const char16_t* words; ///< "%1" stands for the code's number
    };
    static constexpr Row kRows[] = {
        {u"PAG", u"Lien vers la page %1"},
        {u"EXO", u"Test du chapitre %1"},
        {u"EXE", u"Lancer une simulation"},
        {u"BDC", u"Bon de commande"},
    };
    for (const Row& row : kRows)
        if (codePrefix(tag) == row.prefix)
            return QString::fromUtf16(row.words).replace(QStringLiteral("%1"),
                                                         QString::number(codeArgument(tag)));
    return tag == u"FLOTTANT" ? QStringLiteral("Menu") : QStringLiteral("Lien");
}

/// The sign faces have no line ends among their codes.
QString captionInUnicode(const page::LinkOperation& link) {
    QStringList lines = link.caption.split(QStringLiteral("\r\n"));
    for (QString& line : lines)
        line = page::readableSigns(link.font.face, line);
    return lines.join(u' ');
}

} // namespace

QString linkName(const page::LinkOperation& link) {
    const QString words =
        link.control == page::LinkControl::Labelien ? captionInUnicode(link) : link.tooltip;
    const QString name = words.simplified();
    return name.isEmpty() ? meaningOf(link.tag) : name;
}

} // namespace viewer
