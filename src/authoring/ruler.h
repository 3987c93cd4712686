#pragma once

#include "authoring/style.h"
#include "page/text_metrics.h"

#include <QHash>

namespace authoring {

/// Widths and heights of what styles print. Remembers widths by character: a course is made of few.
class Ruler {
public:
    explicit Ruler(const page::TextMetrics& metrics) : metrics_(metrics) {}

    /// In twips.
    double width(const Style& style, char32_t character) const;
    double width(const Style& style, const QString& text) const;
    /// Height of a line, in twips.
    double height(const Style& style) const;

private:
    const page::TextMetrics& metrics_;
    mutable QHash<quint64, double> widths_;
};

} // namespace authoring
