#pragma once

#include <QString>

namespace platform {

/// Shows PDF files that this program has written.
class PdfOpener {
public:
    virtual ~PdfOpener() = default;

    /// Has the system show `file` in the program that it has for such files. False when there is
    /// none, or when what stands there is no PDF file any more.
    virtual bool open(const QString& file) = 0;
};

} // namespace platform
