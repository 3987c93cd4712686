#include "common/measured_slider.h"

#include "common/french_number.h"
#include "common/qt_text.h"

#include <QAccessibleWidget>

namespace common {

namespace {

class MeasuredAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit MeasuredAccessible(MeasuredSlider* slider)
        : QAccessibleWidget(slider, QAccessible::Slider) {}

    QString text(QAccessible::Text kind) const override {
        const MeasuredSlider::Scale& scale = slider().scale();
        if (kind == QAccessible::Value)
            return qtText(frenchNumber(value(slider().value()), scale.decimals) +
                          unitBehind(utf16(scale.unit)));
        return QAccessibleWidget::text(kind);
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QVariant currentValue() const override { return value(slider().value()); }
    void setCurrentValue(const QVariant& wanted) override {
        slider().setValue(slider().scale().positionOf(wanted.toDouble()));
    }
    QVariant maximumValue() const override { return value(slider().maximum()); }
    QVariant minimumValue() const override { return value(slider().minimum()); }
    QVariant minimumStepSize() const override {
        return value(slider().minimum() + slider().singleStep()) - value(slider().minimum());
    }

private:
    MeasuredSlider& slider() const { return *static_cast<MeasuredSlider*>(object()); }
    double value(int position) const { return slider().scale().valueAt(position); }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* slider = dynamic_cast<MeasuredSlider*>(object);
    return slider ? new MeasuredAccessible(slider) : nullptr;
}

} // namespace

MeasuredSlider::MeasuredSlider(Scale scale, QWidget* parent)
    : QSlider(Qt::Horizontal, parent), scale_(std::move(scale)) {
    QAccessible::installFactory(makeInterface); // known factories are not added again
    // The toolkit tells of the value; of one in words nobody hears but where it is the description.
    setAccessibleDescription(QStringLiteral("en %1").arg(scale_.unit));
}

} // namespace common
