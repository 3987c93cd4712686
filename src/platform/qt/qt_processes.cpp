#include "platform/qt/qt_processes.h"

#include "files/within.h"
#include "platform/file_names.h"
#include "platform/program_kind.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#ifdef Q_OS_WIN
#include <windows.h>
#elif defined(Q_OS_LINUX)
#include <linux/close_range.h>
#include <unistd.h>
#endif

namespace platform {

namespace {

/// A file to run, or why there is none.
struct ProgramFile {
    QString path; ///< absolute, since the child starts in another directory than ours
    StartFailure failure = StartFailure::Missing;
};

ProgramFile findProgram(const QString& program) {
    const QFileInfo asked(program);
    const QString directory = asked.absolutePath();
    const std::optional<QString> found = findWithoutCase(directory, asked.fileName());
    const QString path = found.value_or(asked.absoluteFilePath());
    if (!QFileInfo(path).isFile())
        return {};
    // A course folder could name any program of the person's otherwise.
    if (!files::isFileWithin(standardPath(path), standardPath(directory)))
        return {{}, StartFailure::LeadsOut};
    return {path};
}

/// Most of what is open says so itself; libraries may have opened more.
void keepOpenFilesFromChildren() {
#ifdef CLOSE_RANGE_CLOEXEC
    constexpr unsigned kFirstAfterStandardError = 3;
    close_range(kFirstAfterStandardError, ~0U, CLOSE_RANGE_CLOEXEC);
#endif
}

/// A command in the making, in the directory of `file`.
void prepare(QProcess& process, const QString& file, const ProgramVariables& variables) {
    process.setProgram(file);
    process.setWorkingDirectory(QFileInfo(file).absolutePath());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (auto it = variables.begin(); it != variables.end(); ++it)
        environment.insert(it.key(), it.value());
    process.setProcessEnvironment(environment);
}

StartResult run(QProcess& process) {
    keepOpenFilesFromChildren();
    qint64 pid = 0;
    if (!process.startDetached(&pid))
        return {std::nullopt, StartFailure::Refused};
    return {pid};
}

/// Runs the file at `path`, which exists.
StartResult runFile(const QString& path, const ProgramVariables& variables) {
    QProcess process;
    prepare(process, path, variables);
#ifndef Q_OS_WIN
    switch (programKind(path)) {
    case ProgramKind::Elf:
    case ProgramKind::Script:
        break;
    case ProgramKind::Windows:
        process.setProgram(QStandardPaths::findExecutable(QStringLiteral("wine")));
        process.setArguments({path});
        if (process.program().isEmpty())
            return {std::nullopt, StartFailure::NeedsWine};
        break;
    case ProgramKind::SixteenBit:
        return {std::nullopt, StartFailure::SixteenBit};
    case ProgramKind::Unknown:
        return {std::nullopt, StartFailure::NotAProgram};
    }
#endif
    return run(process);
}

} // namespace

#ifdef Q_OS_WIN
StartResult QtProcesses::startMaximized(const QString& program) {
    const ProgramFile file = findProgram(program);
    if (file.path.isEmpty())
        return {std::nullopt, file.failure};
    QProcess process;
    prepare(process, file.path, {});
    process.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* arguments) {
        arguments->startupInfo->dwFlags |= STARTF_USESHOWWINDOW;
        arguments->startupInfo->wShowWindow = SW_SHOWMAXIMIZED;
    });
    return run(process);
}
#endif

StartResult QtProcesses::start(const QString& program, const ProgramVariables& variables) {
    const ProgramFile file = findProgram(program);
    if (file.path.isEmpty())
        return {std::nullopt, file.failure};
    return runFile(file.path, variables);
}

} // namespace platform
