#include "shell/status_place.h"

#include "platform/file_names.h"
#include "platform/personal_directory.h"

#include <QCryptographicHash>
#include <QFileInfo>

namespace shell {

namespace {

const QString kFileName = QStringLiteral("TEMPKX.TMP");
const QString kFolder = QStringLiteral("orvalente");

/// Hexadecimal digits of a course's key: two courses do not share one by chance.
constexpr qsizetype kKeyLength = 32;

/// What stands for the course: another way to the same directory has the same key.
QString keyOf(const QString& installDir) {
    const QFileInfo info(installDir);
    const QString directory = info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
    const QByteArray hash =
        QCryptographicHash::hash(directory.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QString::fromLatin1(hash.left(kKeyLength));
}

} // namespace

QString installedStatusFile(const QString& installDir) {
    const QString path =
        platform::findWithoutCase(installDir, kFileName).value_or(installDir + kFileName);
    return QFileInfo(path).absoluteFilePath();
}

std::optional<QString> personalStatusFile(const QString& installDir) {
    QString directory = platform::personalDirectory();
    if (directory.isEmpty())
        return std::nullopt;
    for (const QString& folder : {kFolder, keyOf(installDir)}) {
        directory += u'/' + folder;
        if (!platform::makePersonalFolder(directory))
            return std::nullopt;
    }
    return directory + u'/' + kFileName;
}

platform::ProgramVariables statusFileVariable(const QString& path) {
    return {{QStringLiteral("ORVALENTE_STATUS_FILE"), path}};
}

} // namespace shell
