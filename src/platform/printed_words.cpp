#include "platform/printed_words.h"

#include <QDir>
#include <QFileInfo>

namespace platform {

namespace {

/// Longest name that is shown whole: with the other words it fills two short lines.
constexpr qsizetype kLongestName = 40;

QString shortened(const QString& name) {
    if (name.size() <= kLongestName)
        return name;
    return name.first(kLongestName / 2) + u'…' + name.last(kLongestName / 2 - 1);
}

} // namespace

QString printedWords(int pages, const PrintTarget& target) {
    const bool one = pages == 1;
    const QString count = one ? QStringLiteral("1 page") : QStringLiteral("%1 pages").arg(pages);
    if (!target.file.isEmpty())
        return count + (one ? QStringLiteral(" écrite dans «\u00A0%1\u00A0».")
                            : QStringLiteral(" écrites dans «\u00A0%1\u00A0»."))
                           .arg(shortened(QFileInfo(target.file).fileName()));
    if (target.printer.isEmpty())
        return count + (one ? QStringLiteral(" imprimée.") : QStringLiteral(" imprimées."));
    return count + (one ? QStringLiteral(" envoyée à l’imprimante «\u00A0%1\u00A0».")
                        : QStringLiteral(" envoyées à l’imprimante «\u00A0%1\u00A0»."))
                       .arg(shortened(target.printer));
}

std::function<void()> showingOf(const PrintTarget& target, PdfOpener& opener,
                                MessageBoxes& messageBoxes) {
    if (target.file.isEmpty())
        return {};
    return [file = target.file, &opener, &messageBoxes] {
        if (!opener.open(file))
            messageBoxes.ask({QStringLiteral("Imprimer"),
                              QStringLiteral("Le fichier n’a pas pu être ouvert\u00A0:\n") +
                                  QDir::toNativeSeparators(file),
                              Message::Icon::Exclamation, Message::Buttons::Ok});
    };
}

} // namespace platform
