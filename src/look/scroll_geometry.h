#pragma once

#include <algorithm>

namespace look {

/// Scrolling of a page in a view, in twips: the page's top stands at the scroll bar's value, which
/// runs from 0 (the page from its top) down to view height - page height.
struct ScrollGeometry {
    int viewHeight;
    int pageHeight;

    /// An arrow key moves by one line of running text at its best size, 22 pixels;
    /// a notch of the wheel by three.
    static constexpr int kSmallChange = 22 * 15;

    bool isNeeded() const { return pageHeight > viewHeight; }
    int maximum() const { return viewHeight - pageHeight; }
    /// One pixel less than a screenful, so that the last line of a screen stays in sight.
    int largeChange() const { return viewHeight - 15; }
    int held(int value) const { return isNeeded() ? std::clamp(value, maximum(), 0) : 0; }
};

} // namespace look
