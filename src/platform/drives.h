#pragma once

#include <QChar>
#include <QString>

#include <map>

namespace platform {

/// Drive letters, "A" to "Z".
class Drives {
public:
    virtual ~Drives() = default;

    /// The drives that there are now: upper-case letter and top directory (without a trailing
    /// separator, except where it is the file system's root). Asked afresh for every search, since
    /// a disc may have been inserted meanwhile. Whether a drive is ready is not asked: a directory
    /// may be missing, and one on a network that has gone would not answer.
    virtual std::map<QChar, QString> letters() const = 0;
};

} // namespace platform
