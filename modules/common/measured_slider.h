#pragma once

#include <QSlider>

#include <functional>

namespace common {

/// A slider whose positions stand for the values of a quantity. Screen readers are told the value,
/// with its unit, instead of the position.
class MeasuredSlider : public QSlider {
public:
    struct Scale {
        std::function<double(int position)> valueAt;
        std::function<int(double value)> positionOf;
        QString unit;
        int decimals;
    };

    explicit MeasuredSlider(Scale scale, QWidget* parent = nullptr);

    const Scale& scale() const { return scale_; }

private:
    Scale scale_;
};

} // namespace common
