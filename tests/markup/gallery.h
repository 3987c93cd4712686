#pragma once

#include <QDir>
#include <QFile>
#include <QString>

#include <map>

namespace test_support {

/// The short sources that the authors' manual shows, by name, with "\n" line ends.
inline std::map<QString, QString> gallery() {
    std::map<QString, QString> sources;
    const QDir directory(QStringLiteral(GALLERY));
    for (const QString& name : directory.entryList({QStringLiteral("*.src")})) {
        QFile file(directory.filePath(name));
        if (file.open(QFile::ReadOnly))
            sources[name.chopped(4)] = QString::fromUtf8(file.readAll());
    }
    return sources;
}

} // namespace test_support
