#pragma once

#include "page/text_metrics.h"

namespace test_support {

/// Metrics one can reckon with: at 10 points a character is 100 twips wide and a line 200 high,
/// other sizes in proportion. "Symbol" is half as high again, so that a change of face shows.
class FixedMetrics : public page::TextMetrics {
public:
    double width(const page::Font& font, QStringView text) const override {
        return static_cast<double>(text.size()) * 10 * font.points;
    }
    double height(const page::Font& font) const override {
        return (font.face == u"Symbol" ? 30 : 20) * font.points;
    }
    double ascent(const page::Font& font) const override { return 16 * font.points; }
};

} // namespace test_support
