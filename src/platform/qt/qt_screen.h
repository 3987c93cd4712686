#pragma once

#include "platform/screen.h"

namespace platform {

/// The primary screen as Qt sees it. `scale` is the factor by which the whole program is enlarged:
/// Qt then reports a screen that is smaller by this factor, which is undone here.
class QtScreen : public Screen {
public:
    explicit QtScreen(double scale = 1) : scale_(scale) {}

    double widthTwips() const override;
    double heightTwips() const override;
    double twipsPerPixelX() const override { return page::kTwipsPerPixel; }
    double twipsPerPixelY() const override { return page::kTwipsPerPixel; }
    double scale() const override { return scale_; }
    void setScale(double scale) { scale_ = scale; }

private:
    double scale_;
};

} // namespace platform
