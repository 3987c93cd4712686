#include "exercises/progress_strip.h"

#include "text/number_text.h"
#include "text/rounding.h"

#include <algorithm>

namespace exercises {

namespace {

constexpr int kGreen = 2;
constexpr int kDarkRed = 4;
constexpr int kDarkGrey = 8;

/// Units left free below a band.
constexpr float kGap = 2;

markup::Rgb palette(int index) {
    return markup::qbColor(index).value_or(markup::kBlack);
}

} // namespace

BandInks bandInks(int state) {
    switch (state) {
    case 1:
        return {markup::rgb(0, 255, 230), palette(kGreen), markup::rgb(0, 220, 180),
                palette(kGreen)};
    case -1:
        return {markup::rgb(255, 150, 150), palette(kDarkRed), markup::rgb(255, 50, 50),
                palette(kDarkRed)};
    default:
        return {markup::rgb(255, 205, 150), palette(kDarkGrey), markup::rgb(255, 175, 100),
                markup::kBlack};
    }
}

std::u16string bandCaption(int question) {
    return u"Question " + text::trimmedNumberText(question);
}

std::u16string bandName(int question, int state) {
    const char16_t* const verdict = state == 1    ? u", juste"
                                    : state == -1 ? u", fausse"
                                                  : u", sans réponse";
    return bandCaption(question) + verdict;
}

std::optional<Band> bandOf(int question, int count, double height) {
    if (count <= 0)
        return std::nullopt;
    const float h = static_cast<float>(height) / static_cast<float>(count);
    const auto top = text::toInt32(static_cast<float>(question - 1) * h);
    const auto bottom = text::toInt32(static_cast<float>(question) * h - kGap);
    if (!top || !bottom || *bottom <= *top)
        return std::nullopt;
    return Band{*top, *bottom};
}

std::optional<std::int16_t> questionAt(double y, int count, double height) {
    if (count <= 0 || height <= 0)
        return std::nullopt;
    const auto question = text::toInt16(y / (height / count) + 0.5);
    if (!question)
        return std::nullopt;
    return static_cast<std::int16_t>(std::clamp<int>(*question, 1, count));
}

std::optional<double> markerTop(int question, int count, double height, double markerHeight) {
    if (count <= 0)
        return std::nullopt;
    return height / count * (question - 0.5) - markerHeight / 2;
}

} // namespace exercises
