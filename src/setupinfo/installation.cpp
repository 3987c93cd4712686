#include "setupinfo/installation.h"

#include "shell/status_file.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

#include <algorithm>

namespace setupinfo {

namespace {

/// A record's text on one line: a damaged one may hold anything.
QString onOneLine(QString record) {
    std::replace_if(
        record.begin(), record.end(), [](QChar c) { return c.category() == QChar::Other_Control; },
        QChar(u' '));
    return record;
}

QString versionText(const QVersionNumber& version) {
    return QStringLiteral("%1.%2.%3")
        .arg(version.majorVersion())
        .arg(version.minorVersion())
        .arg(version.microVersion());
}

QString dateText(QDate date) {
    static const QLocale kFrench(QLocale::French, QLocale::France);
    return kFrench.toString(date, u"dd MMMM yyyy");
}

} // namespace

Installation readInstallation(const QString& statusFile, const QString& programFile,
                              const QVersionNumber& version) {
    using shell::StatusFile;
    const QStringList records =
        StatusFile(statusFile).read({StatusFile::kEditionRecord, StatusFile::kInstallationRecord});
    return {onOneLine(records[0]), onOneLine(records[1]), version, creationDate(programFile)};
}

QDate creationDate(const QString& file) {
    const QFileInfo info(file);
    const QDateTime birth = info.birthTime();
    return (birth.isValid() ? birth : info.lastModified()).date();
}

QString installationText(const Installation& installation) {
    const QString indent(9, u' ');
    const QString lineBreak = QStringLiteral("\r\n");
    return QStringLiteral("Descriptif du logiciel Orvalente installé :") + lineBreak + lineBreak +
           indent + QStringLiteral("Version : ") + installation.edition + u' ' +
           versionText(installation.version) + lineBreak + indent +
           QStringLiteral("Date de création : ") + dateText(installation.created) + lineBreak +
           indent + QStringLiteral("Type d'installation : ") + installation.type;
}

} // namespace setupinfo
