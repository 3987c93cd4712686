#include "calculator/option_frame.h"

#include "look/accessible_role.h"
#include "look/choice_sign.h"
#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/radio_button.h"

#include <QPainter>

namespace calculator {

namespace {

constexpr QRgb kFrameEdge = 0xff7d8f8b;

constexpr int kOptionX = 4;
constexpr int kFirstOptionY = 17;
constexpr int kOptionHeight = 21;

// Within an option; the rest of its area is there to be hit.
constexpr double kCircleX = 10.5;
constexpr double kTextX = 22;
constexpr double kMiddle = 0.355; ///< of the letters' size, from their middle to their foot

class Option : public look::RadioButton {
public:
    using look::RadioButton::RadioButton;

protected:
    bool hitButton(const QPoint& position) const override { return rect().contains(position); }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const double middle = kOptionHeight / 2.0;
        look::paintOptionSign(painter, {kCircleX, middle}, *this);
        painter.setPen(QColor::fromRgb(look::kInk));
        painter.setFont(font());
        painter.drawText(
            QPointF(kTextX, look::snapped(painter, middle + kMiddle * font().pixelSize())), text());
    }
};

} // namespace

OptionFrame::OptionFrame(const QString& caption, const QString& name,
                         const std::array<QString, 2>& captions, QWidget* parent)
    : QWidget(parent), caption_(caption), options_{} {
    look::setAccessibleRole(*this, QAccessible::Grouping);
    for (std::size_t i = 0; i < options_.size(); ++i) {
        auto* const option = new Option(captions[i], this);
        option->setObjectName(name + QString::number(i));
        option->setFont(look::interfaceFont(look::kSmallPx));
        option->setAttribute(Qt::WA_Hover);
        option->setFocusPolicy(Qt::TabFocus);
        options_[i] = option;
    }
    setAccessibleName(caption);
}

void OptionFrame::resizeEvent(QResizeEvent*) {
    int y = kFirstOptionY;
    for (QRadioButton* const option : options_) {
        option->setGeometry(kOptionX, y, width() - 2 * kOptionX, kOptionHeight);
        y += kOptionHeight;
    }
}

void OptionFrame::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    look::drawFrame(painter, rect(), 4, kFrameEdge, QColor::fromRgb(look::kIvory));
    painter.setFont(look::interfaceFont(look::kSmallPx));
    painter.setPen(QColor::fromRgb(look::kMuted));
    painter.drawText(QPointF(8, 14), caption_);
}

} // namespace calculator
