#pragma once

#include <QFile>

namespace common {

/// Opens `file`, unbuffered and as it is, for ReadOnly or ReadWrite when it is a plain file: no
/// symbolic link, pipe or device, which might lead into any file of the person's. One that is to be
/// written has no second name either, and is the person's own where the system tells.
bool openPlain(QFile& file, QIODevice::OpenMode mode);

} // namespace common
