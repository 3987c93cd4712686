#include "help/help_book.h"

#include <QFile>
#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>

namespace help {

namespace {

/// Empty when there is no such file.
QString contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

HelpPage readPage(const QString& file, const QString& html) {
    QTextDocument document;
    document.setUndoRedoEnabled(false);
    document.setHtml(html);
    return {file, document.firstBlock().text(), html, document.toRawText()};
}

} // namespace

HelpBook::HelpBook(const QString& folder) : folder_(folder) {
    const QString contents = contentOf(folder + QStringLiteral("/sommaire.txt"));
    for (const QString& line : contents.split(u'\n'))
        readLine(line.trimmed());
}

void HelpBook::readLine(const QString& line) {
    if (line.startsWith(QStringLiteral("# "))) {
        chapters_.append({line.mid(2), {}});
        return;
    }
    const QString html = line.isEmpty() ? QString() : contentOf(folder_ + u'/' + line);
    if (html.isEmpty())
        return;
    if (chapters_.isEmpty())
        chapters_.append(Chapter());
    chapters_.last().pages.append(static_cast<int>(pages_.size()));
    pages_.append(readPage(line, html));
}

std::optional<int> HelpBook::find(const QString& file) const {
    const auto found = std::ranges::find(pages_, file, &HelpPage::file);
    if (found == pages_.end())
        return std::nullopt;
    return static_cast<int>(found - pages_.begin());
}

} // namespace help
