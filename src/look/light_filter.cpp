#include "look/light_filter.h"

#include <algorithm>

namespace look {

namespace {

/// What white becomes, so that there are darker lines than the ground; of 255.
constexpr int kGround = 26;

/// What is left of the light of pictures, of 255.
constexpr int kPictureLight = 204;

/// How bright a colour is for the eye (ITU-R BT.601), of 255.
int brightness(int red, int green, int blue) {
    return (77 * red + 150 * green + 29 * blue) >> 8;
}

/// A channel of a colour of opacity `alpha`, shifted as the whole colour is.
int shifted(int channel, int shift, int alpha) {
    return (kGround * alpha + std::clamp(channel + shift, 0, alpha) * (255 - kGround)) / 255;
}

QRgb behindGlass(QRgb colour) {
    const auto dim = [](int channel) { return channel * kPictureLight / 255; };
    return qRgba(dim(qRed(colour)), dim(qGreen(colour)), dim(qBlue(colour)), qAlpha(colour));
}

template <class Change>
void forEachPixel(QImage& image, const QRegion& where, Change change) {
    for (const QRect& part : where)
        for (int y = part.top(); y <= part.bottom(); ++y) {
            auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
            std::transform(row + part.left(), row + part.right() + 1, row + part.left(), change);
        }
}

} // namespace

QRgb withReducedLight(QRgb colour) {
    const int red = qRed(colour), green = qGreen(colour), blue = qBlue(colour);
    const int alpha = qAlpha(colour);
    // All channels are shifted alike, which keeps the hue. By the middle of the strongest and the
    // weakest a saturated blue would stay as dark as it is, by its brightness it would become
    // white; half of each keeps it blue and lets it be read.
    const auto [weakest, strongest] = std::minmax({red, green, blue});
    const int shift = alpha - (weakest + strongest) / 2 - brightness(red, green, blue);
    return qRgba(shifted(red, shift, alpha), shifted(green, shift, alpha),
                 shifted(blue, shift, alpha), alpha);
}

void reduceLight(QImage& image, const QRegion& kept) {
    forEachPixel(image, QRegion(image.rect()) - kept, withReducedLight);
    forEachPixel(image, QRegion(image.rect()) & kept, behindGlass);
}

} // namespace look
