#pragma once

#include <QChar>
#include <QString>

#include <map>

namespace platform {

/// Drive letters, "A" to "Z".
class Drives {
public:
    virtual ~Drives() = default;

    /// The drives that are ready now: upper-case letter and top directory (without a trailing
    /// separator, except where it is the file system's root). Asked afresh for every search, since
    /// a disc may have been inserted meanwhile.
    virtual std::map<QChar, QString> ready() const = 0;
};

} // namespace platform
