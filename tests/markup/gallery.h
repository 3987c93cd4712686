#pragma once

#include <QDir>
#include <QFile>
#include <QString>

#include <map>

namespace test_support {

/// The short sources that the authors' manual shows, by file name, with "\n" line ends; those of
/// questions end in ".question".
inline std::map<QString, QString> gallery() {
    std::map<QString, QString> sources;
    const QDir directory(QStringLiteral(GALLERY));
    for (const QString& name :
         directory.entryList({QStringLiteral("*.src"), QStringLiteral("*.question")})) {
        QFile file(directory.filePath(name));
        if (file.open(QFile::ReadOnly))
            sources[name] = QString::fromUtf8(file.readAll());
    }
    return sources;
}

} // namespace test_support
