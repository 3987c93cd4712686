#include "orderform/field_note.h"

#include "look/interface_font.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QFontMetricsF>
#include <QPainter>

namespace orderform {

namespace {

constexpr int kHeight = 16;
constexpr double kSignPx = 14;
constexpr double kSignGap = 5;

/// Height of the letters' middle above their foot, in parts of the size.
constexpr double kMiddle = 0.355;

QString signOf(FieldNote::Kind kind) {
    switch (kind) {
    case FieldNote::Kind::Fault:
        return QStringLiteral("faces/wrong");
    case FieldNote::Kind::Done:
        return QStringLiteral("faces/right");
    case FieldNote::Kind::Hint:
        break;
    }
    return {};
}

QRgb colourOf(FieldNote::Kind kind) {
    switch (kind) {
    case FieldNote::Kind::Fault:
        return look::kRed;
    case FieldNote::Kind::Done:
        return look::kGreen;
    case FieldNote::Kind::Hint:
        break;
    }
    return look::kMuted;
}

} // namespace

FieldNote::FieldNote(QWidget* parent) : QWidget(parent) {
    setFont(look::interfaceFont(look::kButtonPx));
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void FieldNote::say(Kind kind, const QString& words) {
    kind_ = kind;
    words_ = words;
    sign_ = look::Icon(signOf(kind));
    setAccessibleName(words);
    update();
}

QSize FieldNote::sizeHint() const {
    const double sign = sign_.isEmpty() ? 0 : kSignPx + kSignGap;
    return {qCeil(sign + QFontMetricsF(font()).horizontalAdvance(words_)), kHeight};
}

void FieldNote::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    double left = 0;
    if (!sign_.isEmpty()) {
        sign_.paint(painter, {0, (height() - kSignPx) / 2, kSignPx, kSignPx},
                    look::Icon::Style::Coloured);
        left = kSignPx + kSignGap;
    }
    painter.setFont(font());
    painter.setPen(QColor::fromRgb(colourOf(kind_)));
    const double baseline = height() / 2.0 + kMiddle * font().pixelSize();
    painter.drawText(QPointF(left, look::snapped(painter, baseline)), words_);
}

} // namespace orderform
