#include "platform/qt/qt_processes.h"

#include "platform/file_names.h"
#include "platform/program_kind.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace platform {

namespace {

StartResult run(const QString& command, const QStringList& arguments, const QString& directory) {
    qint64 pid = 0;
    if (!QProcess::startDetached(command, arguments, directory, &pid))
        return {std::nullopt, StartFailure::Refused};
    return {pid};
}

#ifndef Q_OS_WIN
StartResult runWithWine(const QString& path, const QStringList& arguments,
                        const QString& directory) {
    const QString wine = QStandardPaths::findExecutable(QStringLiteral("wine"));
    if (wine.isEmpty())
        return {std::nullopt, StartFailure::NeedsWine};
    return run(wine, QStringList{path} + arguments, directory);
}
#endif

/// Runs the file at `path`, which exists.
StartResult runFile(const QString& path, const QStringList& arguments, const QString& directory) {
#ifdef Q_OS_WIN
    return run(path, arguments, directory);
#else
    switch (programKind(path)) {
    case ProgramKind::Elf:
    case ProgramKind::Script:
        return run(path, arguments, directory);
    case ProgramKind::Windows:
        return runWithWine(path, arguments, directory);
    case ProgramKind::SixteenBit:
        return {std::nullopt, StartFailure::SixteenBit};
    case ProgramKind::Unknown:
        break;
    }
    return {std::nullopt, StartFailure::NotAProgram};
#endif
}

} // namespace

#ifdef Q_OS_WIN
StartResult QtProcesses::startMaximized(const QString& program) {
    const QFileInfo file(program);
    if (!file.isFile())
        return {std::nullopt, StartFailure::Missing};
    QProcess process;
    process.setProgram(file.absoluteFilePath());
    process.setWorkingDirectory(file.absolutePath());
    process.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* arguments) {
        arguments->startupInfo->dwFlags |= STARTF_USESHOWWINDOW;
        arguments->startupInfo->wShowWindow = SW_SHOWMAXIMIZED;
    });
    qint64 pid = 0;
    if (!process.startDetached(&pid))
        return {std::nullopt, StartFailure::Refused};
    return {pid};
}
#endif

StartResult QtProcesses::start(const QString& program, const QStringList& arguments) {
    const QFileInfo asked(program);
    // Absolute, since the child starts in another directory than ours.
    const QString directory = asked.absolutePath();
    const std::optional<QString> found = findWithoutCase(directory, asked.fileName());
    if (!found)
        return {std::nullopt, StartFailure::Missing};
    return runFile(*found, arguments, directory);
}

} // namespace platform
