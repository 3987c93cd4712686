#include "check/contrast.h"

#include <QRectF>

#include <algorithm>
#include <array>
#include <cmath>

namespace check {

namespace {

constexpr QRgb kWhite = 0xffffffff;

/// By its value; each word of a course asks for six.
double channel(int value) {
    static const auto kChannels = [] {
        std::array<double, 256> channels{};
        for (std::size_t i = 0; i < channels.size(); ++i) {
            const double c = static_cast<double>(i) / 255;
            channels[i] = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        }
        return channels;
    }();
    return kChannels.at(static_cast<std::size_t>(value));
}

double luminance(QRgb colour) {
    return 0.2126 * channel(qRed(colour)) + 0.7152 * channel(qGreen(colour)) +
           0.0722 * channel(qBlue(colour));
}

template <class Operation>
QRectF boxOf(const Operation& operation) {
    return {operation.x, operation.y, operation.width, operation.height};
}

} // namespace

double contrastOf(QRgb a, QRgb b) {
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

Grounds::Grounds(const DrawnSource& drawn) : metrics_(drawn.metrics()) {
    for (const DrawnOperation& operation : drawn.operations()) {
        if (const auto* fill = std::get_if<page::FillOperation>(operation.operation))
            fills_.push_back(fill);
        else if (const auto* picture = std::get_if<page::PictureOperation>(operation.operation))
            pictures_.push_back(picture);
    }
}

double Grounds::contrast(const page::TextOperation& text) const {
    const QPointF middle(text.x + text.width / 2, text.y + metrics_.height(text.font) / 2);
    const auto covers = [&](const auto* operation) {
        return operation->surface == text.surface && boxOf(*operation).contains(middle);
    };
    if (std::any_of(pictures_.begin(), pictures_.end(), covers))
        return contrastOf(0xff000000, kWhite);
    QRgb ground = kWhite;
    QRgb ink = text.ink;
    for (const page::FillOperation* fill : fills_) {
        if (!covers(fill))
            continue;
        ground = fill->mode == page::FillMode::Mask ? ground & fill->ink : fill->ink;
        ink = fill->mode == page::FillMode::Mask ? ink & fill->ink : ink;
    }
    return contrastOf(ground, ink);
}

} // namespace check
