#include "calculator/key_button.h"

#include "look/palette.h"
#include "look/pixels.h"
#include "look/tool_tip.h"

#include <QFontMetricsF>
#include <QPainter>

namespace calculator {

namespace {

constexpr QRgb kKeyEdge = 0xff7d8f8b; ///< stands out from the key and from the gradient around
constexpr double kRadius = 4;
constexpr double kIconPx = 20;
constexpr int kRaisedPx = 9;
constexpr double kRaise = 6.5;

/// Height of the letters' middle above their foot, in parts of the size.
constexpr double kMiddle = 0.355;

/// Symbols and digits are large and bold; words are not bold.
QFont captionFont(const KeyPlace& place) {
    const bool bold = place.captionPx > look::kLabelPx && !place.serif;
    QFont font =
        look::interfaceFont(place.captionPx, bold ? look::Weight::Bold : look::Weight::Regular);
    if (place.serif)
        font.setFamily(QStringLiteral("Liberation Serif"));
    return font;
}

} // namespace

struct KeyButton::Colours {
    QRgb ground;
    QRgb edge;
    QRgb text;
    double edgePx = 1;
};

KeyButton::KeyButton(const Key& key, const KeyPlace& place, QWidget* parent)
    : Button(QStringView(key.caption).toString(), {}, parent), style_(place.style),
      icon_(key.caption.empty() ? QStringLiteral("erase") : QString()) {
    setObjectName(QStringView(key.name).toString());
    setFont(captionFont(place));
    setGeometry(place.x, place.y, place.width, place.height);
    const QString tooltip = QStringView(key.tooltip).toString();
    look::setToolTip(*this, tooltip);
    const QString spoken = QStringView(key.spoken).toString();
    if (!spoken.isEmpty() || !tooltip.isEmpty())
        setAccessibleName(spoken.isEmpty() ? tooltip : spoken);
}

KeyButton::Colours KeyButton::colours() const {
    if (style_ == KeyStyle::Main) {
        const QRgb ground = isDown()       ? look::kDarkBlue
                            : underMouse() ? look::kHoverBlue
                                           : look::kBlue;
        return {ground, ground, look::kPaper};
    }
    const bool isOperator = style_ == KeyStyle::Operator;
    const QRgb text = style_ == KeyStyle::Digit ? look::kInk
                      : isOperator              ? look::kDarkBlue
                                                : look::kBlue;
    if (isDown())
        return {isOperator ? look::blend(look::kBlue, look::kPressedTint, 0.25)
                           : look::kPressedTint,
                look::kDarkBlue, style_ == KeyStyle::Digit ? look::kInk : look::kDarkBlue};
    const QRgb rest = style_ == KeyStyle::Digit ? look::kPaper
                      : isOperator              ? look::kPressedTint
                                                : look::kIvory;
    const double edgePx = hasFocus() ? 2 : 1;
    if (underMouse())
        return {look::kHoverTint, look::kBlue, text, edgePx};
    return {rest, hasFocus() ? look::kBlue : kKeyEdge, text, edgePx};
}

void KeyButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Colours now = colours();
    look::drawFrame(painter, rect(), kRadius, now.edge, QColor::fromRgb(now.ground), now.edgePx);
    if (style_ == KeyStyle::Main && hasFocus())
        look::drawFrame(painter, QRectF(rect()).adjusted(3, 3, -3, -3), kRadius - 1.5, look::kPaper,
                        Qt::NoBrush);
    if (isDown())
        painter.translate(0, look::crisp(painter));
    painter.setPen(QColor::fromRgb(now.text));
    painter.setFont(font());
    if (!icon_.isEmpty()) {
        icon_.paint(painter, {(width() - kIconPx) / 2, (height() - kIconPx) / 2, kIconPx, kIconPx},
                    look::Icon::Style::Coloured);
        return;
    }
    const QString caption = plainCaption();
    if (const qsizetype mark = caption.indexOf(u'^'); mark >= 0)
        return paintRaised(painter, caption.first(mark), caption.sliced(mark + 1));
    const double textWidth = QFontMetricsF(font()).horizontalAdvance(caption);
    paintCaption(painter, {(width() - textWidth) / 2, baseline()});
}

/// Words and signs on the function keys of a row stand on one line, whatever their sizes.
double KeyButton::baseline() const {
    const int pixels = style_ == KeyStyle::Function ? look::kButtonPx : font().pixelSize();
    return height() / 2.0 + kMiddle * pixels;
}

void KeyButton::paintRaised(QPainter& painter, const QString& base, const QString& raised) const {
    QFont baseFont = font();
    baseFont.setItalic(base == QStringLiteral("x"));
    const QFont raisedFont = look::interfaceFont(kRaisedPx);
    const double baseWidth = QFontMetricsF(baseFont).horizontalAdvance(base) + 1;
    const double whole = baseWidth + QFontMetricsF(raisedFont).horizontalAdvance(raised);
    const double left = (width() - whole) / 2;
    const double foot = look::snapped(painter, baseline() + 1);
    painter.setFont(baseFont);
    painter.drawText(QPointF(left, foot), base);
    painter.setFont(raisedFont);
    painter.drawText(QPointF(left + baseWidth, look::snapped(painter, foot - kRaise)), raised);
}

} // namespace calculator
