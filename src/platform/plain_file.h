#pragma once

#include <QFile>

namespace platform {

/// What a plain file is opened for.
enum class PlainAccess {
    Read,
    ReadWrite,         ///< made, for its owner alone, when it does not exist
    ReadWriteExisting, ///< the same, but not made
};

/// Opens `file`, unbuffered, when what has its name is a plain file and nothing else. A symbolic
/// link (a dangling one too, through which nothing is made), a directory, a pipe, a socket and a
/// device are refused, and none is waited for: whoever made a course folder may have put there what
/// leads into files of the person who opens the course. For writing the file must also have no
/// second name, and belong to the person where the system tells whose a file is.
///
/// Programs started meanwhile do not inherit it. False, and nothing else, on failure.
bool openPlainFile(QFile& file, PlainAccess access);

} // namespace platform
