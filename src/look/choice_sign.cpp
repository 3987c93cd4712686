#include "look/choice_sign.h"

#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QAbstractButton>
#include <QPainter>
#include <QStyle>

namespace look {

namespace {

constexpr double kRadius = 6;
constexpr double kDotRadius = 3.25;
constexpr double kBoxCorner = 2;
constexpr double kLine = 1.25;
constexpr double kFocusLine = 2;
constexpr double kFocusCorner = 3;
constexpr double kTickLine = 2;

constexpr int kCaptionLeft = 20;
constexpr int kCaptionHeight = 24;
constexpr int kCaptionMargin = 4; ///< beside the words, for the frame of the keyboard

QColor ink(const QAbstractButton& button) {
    return QColor::fromRgb(!button.isEnabled() ? kEdge : button.isDown() ? kDarkBlue : kBlue);
}

QColor ground(const QAbstractButton& button) {
    if (!button.isEnabled()) // filled: an empty sign would look as if it could still be chosen
        return QColor::fromRgb(kVideoTrack);
    return QColor::fromRgb(button.isDown()       ? kPressedTint
                           : button.underMouse() ? kHoverTint
                                                 : kPaper);
}

void begin(QPainter& painter, const QAbstractButton& button) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink(button), button.hasFocus() ? kFocusLine : kLine));
    painter.setBrush(ground(button));
}

} // namespace

void paintOptionSign(QPainter& painter, QPointF centre, const QAbstractButton& button) {
    begin(painter, button);
    painter.drawEllipse(centre, kRadius, kRadius);
    if (button.isChecked()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink(button));
        painter.drawEllipse(centre, kDotRadius, kDotRadius);
    }
    painter.restore();
}

void paintCheckSign(QPainter& painter, QPointF centre, const QAbstractButton& button) {
    begin(painter, button);
    const QRectF box(centre - QPointF(kRadius, kRadius), QSizeF(2 * kRadius, 2 * kRadius));
    painter.drawRoundedRect(box, kBoxCorner, kBoxCorner);
    if (button.isChecked()) {
        painter.setPen(QPen(ink(button), kTickLine, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(QPolygonF{centre + QPointF(-3, 0.25), centre + QPointF(-0.75, 2.5),
                                       centre + QPointF(3.25, -2.75)});
    }
    painter.restore();
}

void paintChoiceFocus(QPainter& painter, const QRectF& place, const QAbstractButton& button) {
    if (button.hasFocus())
        drawFrame(painter, place, kFocusCorner, kBlue, Qt::NoBrush, kFocusLine);
}

void prepareChoice(QAbstractButton& button) {
    button.setFont(interfaceFont(kLabelPx));
    button.setAttribute(Qt::WA_Hover);
    button.setAccessibleName(button.text().remove(u'&'));
}

QSize choiceSize(const QAbstractButton& button) {
    const int words = button.fontMetrics().size(Qt::TextShowMnemonic, button.text()).width();
    return {kCaptionLeft + words + kCaptionMargin, kCaptionHeight};
}

void paintChoiceCaption(QPainter& painter, const QAbstractButton& button) {
    painter.setFont(button.font());
    painter.setPen(QColor::fromRgb(button.isEnabled() ? kInk : kEdge));
    const int mnemonic = button.style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, &button)
                             ? Qt::TextShowMnemonic
                             : Qt::TextHideMnemonic;
    painter.drawText(button.rect().adjusted(kCaptionLeft, 0, 0, 0),
                     static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | mnemonic, button.text());
    const double left = kCaptionLeft - kCaptionMargin;
    paintChoiceFocus(painter, {left, 0, choiceSize(button).width() - left, double(button.height())},
                     button);
}

} // namespace look
