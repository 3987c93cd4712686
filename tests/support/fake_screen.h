#pragma once

#include "platform/screen.h"

namespace test_support {

/// A screen of any size; the members may change while a test runs.
class FakeScreen : public platform::Screen {
public:
    explicit FakeScreen(double widthPixels = 1024, double heightPixels = 768)
        : width(widthPixels * 15), height(heightPixels * 15) {}

    double widthTwips() const override { return width; }
    double heightTwips() const override { return height; }
    double twipsPerPixelX() const override { return twipsPerPixel; }
    double twipsPerPixelY() const override { return twipsPerPixel; }
    double scale() const override { return factor; }

    double width;
    double height;
    double twipsPerPixel = 15;
    double factor = 1;
};

} // namespace test_support
