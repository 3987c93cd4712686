#pragma once

#include <QString>

namespace coursedata {

/// Where the files of a course are.
struct DataDirectories {
    /// The installation directory with exactly one trailing separator, "/" on every system. Every
    /// installed file is this followed by a bare file name.
    QString InstallDir;
    /// Where on the discs pictures and videos were found last: letter, ":\" and directory.
    QString PictureDataDir;
    QString VideoDataDir;
};

} // namespace coursedata
