#include "coursedata/data_location.h"

#include "platform/file_names.h"

#include <algorithm>

namespace coursedata {

namespace {

const QString kPictureFolder = QStringLiteral("ZEKXDATA");
const QString kVideoFolder = QStringLiteral("ZEKXV");

bool isBlank(const QString& name) {
    return std::all_of(name.begin(), name.end(), [](QChar c) { return c == u' '; });
}

QString dataDirectory(QChar letter, const QString& folder) {
    return letter + QStringLiteral(":\\") + folder + u'\\';
}

} // namespace

QString DataLocation::locatePicture(const QString& name) {
    if (isBlank(name))
        return name;
    const QString fileName = platform::lastComponent(name);
    if (const auto installed = findInstalled(fileName))
        return *installed;
    // The directory is kept but never read, and every picture searches all drives again: meant so.
    return searchDrives(kPictureFolder, fileName, directories_.PictureDataDir);
}

std::optional<QString> DataLocation::findInstalled(const QString& fileName) const {
    return platform::findWithoutCase(directories_.InstallDir, fileName);
}

QString DataLocation::locateVideo(const QString& name) {
    if (isBlank(name))
        return name;
    return searchDrives(kVideoFolder, platform::lastComponent(name), directories_.VideoDataDir);
}

std::optional<QString> DataLocation::findBesideLastVideo(const QString& name) {
    const QString fileName = platform::lastComponent(name);
    if (fileName.isEmpty() || directories_.VideoDataDir.isEmpty())
        return std::nullopt;
    const auto found = drives_.findOn(directories_.VideoDataDir.front(), kVideoFolder, fileName);
    return found ? std::optional(found->path) : std::nullopt;
}

QString DataLocation::searchDrives(const QString& folder, const QString& fileName,
                                   QString& dataDir) {
    do {
        if (const auto found = drives_.find(folder, fileName)) {
            dataDir = dataDirectory(found->letter, folder);
            return found->path;
        }
    } while (wantsToRetry());
    beeper_.beep();
    return {};
}

bool DataLocation::wantsToRetry() {
    const platform::Message question{
        QStringLiteral("CD-ROM absent"),
        QStringLiteral("Veuillez introduire le CD-ROM « ORVALENTE SCIENCES » dans le lecteur."),
        platform::Message::Icon::Exclamation, platform::Message::Buttons::RetryCancel};
    return messageBoxes_.ask(question) == platform::Answer::Retry;
}

} // namespace coursedata
