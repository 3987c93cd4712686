#pragma once

#include <QRegion>

namespace look {

/// A widget with parts whose colours are what they are there for: photographs, spectra, videos,
/// paper.
class KeepsColours {
public:
    virtual ~KeepsColours() = default;

    /// These parts, in its own pixels.
    virtual QRegion keptArea() const = 0;
};

} // namespace look
