#pragma once

#include <QChar>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>

namespace app {

/// What the person who starts the shell asks for.
struct CommandLine {
    std::optional<QString> course;   ///< --course DIR
    std::map<QChar, QString> drives; ///< --drive L=DIR, any number of times
    double scale = 1;                ///< --scale F; without meaning with scaleAuto
    bool scaleAuto = false;          ///< --scale auto
    bool author = false;             ///< --author: shows what only authors use

    /// --preview SRC: the sources of a course, shown while they are written. For the course tool,
    /// which has looked at them; no option of the help.
    std::optional<QString> preview;

    /// Something to print instead of starting: the help, the version, or what is wrong.
    std::optional<QString> message;
    bool isError = false; ///< the message goes to standard error and the exit status is 2
};

/// Reads the arguments, the program's own name first. Works before there is an application object.
CommandLine readCommandLine(const QStringList& arguments);

} // namespace app
