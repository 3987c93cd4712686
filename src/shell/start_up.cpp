#include "shell/start_up.h"

#include "coursedata/course_directory.h"
#include "files/publication.h"
#include "platform/file_names.h"
#include "shell/status_file.h"
#include "shell/status_place.h"

#include <QDir>

namespace shell {

namespace {

using platform::Message;

/// What sibling programs find in the status file about the edition they run beside. It says for
/// whom the edition is; the version stands behind it wherever both are shown.
const QString kEditionLabel = QStringLiteral("Collège et lycée");

constexpr int kSiblingPrograms = 19;

} // namespace

QString installDir(const QString& directory) {
    QString path = QDir::fromNativeSeparators(directory);
    while (path.endsWith(u'/'))
        path.chop(1);
    return path + u'/';
}

StartUp::StartUp(SharedState& state, const QString& courseDirectory, Parts parts)
    : state_(state), courseDirectory_(courseDirectory), parts_(parts) {}

StartUp::Outcome StartUp::run() {
    prepareWindow();
    clearSharedState();
    state_.InstallDir = installDir(courseDirectory_);
    if (isTooNarrow(parts_.screen)) {
        // Misspelt on purpose.
        return endWith(QStringLiteral("La configyaration d'écran est inadaptée"));
    }
    if (!bindDatabase())
        return endWith(QStringLiteral("Base de données absente"));
    coverPath_ = state_.InstallDir + QStringLiteral("couverture.jpg");
    fillSiblingProgramNames();
    if (!warnWhileTooNarrow())
        return Outcome::End;
    centreWindow();
    resetStatusFile();
    parts_.window.pumpPendingMessages();
    state_.InstallDir = installDir(courseDirectory_);
    parts_.window.pumpPendingMessages();
    return Outcome::GoOn;
}

void StartUp::prepareWindow() {
    parts_.window.setWidth(kWindowWidthPixels *
                           platform::knownTwipsPerPixel(parts_.screen.twipsPerPixelX()));
}

void StartUp::clearSharedState() {
    state_.VideoOpen = false;
    state_.PictureDataDir.clear();
    state_.VideoDataDir.clear();
}

/// False when there is no database file. One that cannot be opened is not noticed here.
bool StartUp::bindDatabase() {
    // A build that was cut short leaves new pages that want their pictures.
    files::finishPublication(platform::standardPath(state_.InstallDir));
    const std::optional<QString> path = coursedata::findCourseDatabase(state_.InstallDir);
    if (!path)
        return false;
    parts_.database.bind(*path);
    parts_.window.pumpPendingMessages();
    return true;
}

void StartUp::fillSiblingProgramNames() {
    for (int slot = 1; slot <= kSiblingPrograms; ++slot) {
        state_.SiblingProgramNames.store(
            slot, QStringLiteral("SIMU%1.EXE").arg(slot, 2, 10, QChar(u'0')));
    }
}

/// False when the person chose to leave. The screen is measured again each time, since the warning
/// leads to the display settings.
bool StartUp::warnWhileTooNarrow() {
    state_.DisplayWarningMode = 0;
    while (isTooNarrow(parts_.screen)) {
        state_.DisplayWarningMode = 1;
        if (parts_.warning.showModally() == DisplayWarning::Choice::Quit)
            return false;
    }
    return true;
}

void StartUp::centreWindow() {
    if (isWideEnoughToCentre(parts_.screen))
        parts_.window.place(centredWindow(parts_.screen));
}

/// Also when sibling programs of an earlier session still run: they are forgotten.
void StartUp::resetStatusFile() {
    QStringList texts;
    for (int module = 1; module <= StatusFile::kModuleRecords; ++module) {
        texts.append(QStringLiteral("NON"));
        state_.SiblingProcessIds.store(module, 0);
    }
    texts.append({QStringLiteral("NON"), kEditionLabel});
    state_.StatusFilePath = installedStatusFile(state_.InstallDir);
    if (!StatusFile(state_.StatusFilePath).write(1, texts))
        resetPersonalStatusFile(texts);
}

/// An installed course cannot be written: the file is then the person's own. It tells the kind of
/// installation as the installed one does, which the shell itself does not know.
void StartUp::resetPersonalStatusFile(QStringList texts) {
    const std::optional<QString> personal = personalStatusFile(state_.InstallDir);
    if (!personal)
        return;
    texts.append(StatusFile(state_.StatusFilePath).read(StatusFile::kInstallationRecord));
    if (StatusFile(*personal).write(1, texts))
        state_.StatusFilePath = *personal;
}

StartUp::Outcome StartUp::endWith(const QString& reason) {
    parts_.messageBoxes.ask({QStringLiteral("Exécution impossible"), reason,
                             Message::Icon::Critical, Message::Buttons::Ok});
    return Outcome::End;
}

} // namespace shell
