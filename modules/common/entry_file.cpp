#include "common/entry_file.h"

#include <QFile>
#include <QFileInfo>

namespace common {

std::optional<std::u16string> readEntryFile(const QString& path) {
    // A directory or a pipe of this name is no file to read.
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.read(kLargestFile + 1);
    if (bytes.size() > kLargestFile)
        return std::nullopt;
    return QString::fromUtf8(bytes).toStdU16String();
}

} // namespace common
