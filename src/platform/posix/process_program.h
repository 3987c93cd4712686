#pragma once

#include <QString>

namespace platform {

/// Path of the file of the program that the process `pid` runs, as /proc tells. For a program that
/// runs through Wine it is that of the Windows program, which Wine puts first among the words of
/// its command line. Empty when it cannot be told: there is no such process, it is another
/// person's, or there is no /proc.
QString programOfProcess(qint64 pid);

} // namespace platform
