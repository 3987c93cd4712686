#include "common/entry_file.h"

#include <QFile>
#include <QFileInfo>

namespace common {

std::optional<std::vector<Entry>> readEntries(const QString& path) {
    // A directory or a pipe of this name is no file to read.
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.read(kLargestFile + 1);
    if (bytes.size() > kLargestFile)
        return std::nullopt;
    return parseEntries(QString::fromUtf8(bytes));
}

std::optional<std::vector<Entry>> parseEntries(const QString& text) {
    std::vector<Entry> entries;
    const QStringList lines = text.split(u'\n');
    for (qsizetype number = 0; number < lines.size(); ++number) {
        QString line = lines[number].trimmed();
        if (number == 0 && line.startsWith(QChar(QChar::ByteOrderMark)))
            line.remove(0, 1);
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        const qsizetype sign = line.indexOf(u'=');
        if (sign < 1)
            return std::nullopt;
        entries.push_back({line.first(sign).trimmed(), line.mid(sign + 1).trimmed(),
                           static_cast<int>(number) + 1});
    }
    return entries;
}

} // namespace common
