#include "look/coloured_area.h"

#include <algorithm>
#include <vector>

namespace look {

namespace {

/// From here on a pixel hides what is below it; of 255.
constexpr int kOpaque = 250;

/// A picture of which less than one part in so many is transparent is a photograph, with round
/// corners perhaps.
constexpr int kFewTransparent = 8;

/// A colour is strong or dark when its weakest channel is below this; of 255.
constexpr int kPale = 160;

/// What is narrower, in pixels, is a line or a letter.
constexpr int kNarrowest = 9;

/// What is smaller within an area, in pixels, stands in it: a white letter.
constexpr int kHole = 16;

bool isOpaque(QRgb pixel) {
    return qAlpha(pixel) >= kOpaque;
}

bool isStrong(QRgb pixel) {
    return isOpaque(pixel) && std::min({qRed(pixel), qGreen(pixel), qBlue(pixel)}) < kPale;
}

/// Which pixels of a picture belong to an area.
class Mask {
public:
    Mask(const QImage& picture, bool (*belongs)(QRgb))
        : width_(picture.width()), height_(picture.height()), in_(count()) {
        for (int y = 0; y < height_; ++y) {
            const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
            std::transform(row, row + width_, in_.begin() + at(0, y), belongs);
        }
    }

    std::size_t count() const {
        return static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_);
    }
    std::size_t inside() const {
        return static_cast<std::size_t>(std::count(in_.begin(), in_.end(), true));
    }

    void dropNarrow() {
        for (const bool along : {true, false}) {
            const std::vector<int> runs = runsOf(true, along);
            std::transform(runs.begin(), runs.end(), in_.begin(),
                           [](int run) { return run >= kNarrowest; });
        }
    }

    void fillHoles() {
        const std::vector<int> across = runsOf(false, true), down = runsOf(false, false);
        for (std::size_t i = 0; i < in_.size(); ++i)
            in_[i] = in_[i] || (across[i] <= kHole && down[i] <= kHole);
    }

    QRegion region() const {
        std::vector<QRect> bands; // sorted, and rows that are alike as one, as a region wants them
        std::vector<QRect> last;  // the bands that end above the row
        for (int y = 0; y < height_; ++y) {
            std::vector<QRect> row = runsIn(y);
            if (areAlike(row, last)) {
                for (QRect& band : last)
                    band.setBottom(y);
                continue;
            }
            bands.insert(bands.end(), last.begin(), last.end());
            last = std::move(row);
        }
        bands.insert(bands.end(), last.begin(), last.end());
        QRegion area;
        area.setRects(bands.data(), static_cast<int>(bands.size()));
        return area;
    }

private:
    using Bits = std::vector<bool>;

    std::ptrdiff_t at(int x, int y) const { return std::ptrdiff_t{y} * width_ + x; }
    Bits::const_iterator begin(int y) const { return in_.begin() + at(0, y); }
    Bits::const_iterator end(int y) const { return in_.begin() + at(width_, y); }

    std::vector<QRect> runsIn(int y) const {
        std::vector<QRect> runs;
        for (auto from = begin(y); from != end(y);) {
            from = std::find(from, end(y), true);
            const auto to = std::find(from, end(y), false);
            if (from != to)
                runs.emplace_back(int(from - begin(y)), y, int(to - from), 1);
            from = to;
        }
        return runs;
    }

    static bool areAlike(const std::vector<QRect>& row, const std::vector<QRect>& band) {
        return std::equal(row.begin(), row.end(), band.begin(), band.end(),
                          [](const QRect& a, const QRect& b) {
                              return a.left() == b.left() && a.width() == b.width();
                          });
    }

    /// For each pixel with that value how many stand together, along the row or the column. What is
    /// open to the picture's edge is no hole.
    std::vector<int> runsOf(bool value, bool alongRow) const {
        std::vector<int> runs(count());
        const int lines = alongRow ? height_ : width_, length = alongRow ? width_ : height_;
        for (int line = 0; line < lines; ++line) {
            const auto place = [&](int i) {
                return static_cast<std::size_t>(alongRow ? at(i, line) : at(line, i));
            };
            for (int from = 0; from < length;) {
                int to = from;
                while (to < length && in_[place(to)] == value)
                    ++to;
                const bool isOpen = !value && (from == 0 || to == length);
                for (int i = from; i < to; ++i)
                    runs[place(i)] = isOpen ? std::max(to - from, kHole + 1) : to - from;
                from = std::max(to, from + 1);
            }
        }
        return runs;
    }

    int width_;
    int height_;
    Bits in_;
};

} // namespace

QRegion colouredArea(const QImage& picture) {
    if (!picture.hasAlphaChannel())
        return picture.rect();
    const QImage pixels = picture.convertToFormat(QImage::Format_ARGB32);
    const Mask opaque(pixels, isOpaque);
    if ((opaque.count() - opaque.inside()) * kFewTransparent < opaque.count())
        return opaque.region();
    Mask strong(pixels, isStrong);
    strong.dropNarrow();
    strong.fillHoles();
    return strong.region();
}

} // namespace look
