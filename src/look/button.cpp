#include "look/button.h"

#include "look/accessible_role.h"
#include "look/palette.h"
#include "look/pixels.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>

namespace look {

namespace {

constexpr double kRadius = 4;
constexpr double kIconPx = 24;
constexpr double kIconGap = 7;

// Buttons with the icon on top.
constexpr double kTopIconY = 7;
constexpr double kTopBaseline = 46;

constexpr int kHeight = 32;
constexpr int kSideMargin = 16;
constexpr int kSegmentHeight = 26;
constexpr int kSegmentMargin = 6;

/// Height of the letters' middle above their foot, in parts of the size.
constexpr double kMiddle = 0.355;

} // namespace

struct Button::Colours {
    QRgb ground = 0; ///< 0: nothing is painted
    QRgb edge = 0;
    double edgePx = 1;
    QRgb text = kBlue;
    Icon::Style icon = Icon::Style::Coloured;
    QRgb fadedOver = kIvory;
};

Button::Button(const QString& caption, const Look& look, QWidget* parent)
    : QPushButton(parent), kind_(look.kind), place_(look.place), icon_(look.icon) {
    if (kind_ == Kind::Segment)
        setAccessibleRole(*this, QAccessible::RadioButton);
    setText(caption);
    setFont(interfaceFont(place_ == IconPlace::Top ? kSmallPx : kButtonPx, look.weight));
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setAutoDefault(true);
    setCheckable(kind_ == Kind::Segment);
    if (!caption.isEmpty())
        setAccessibleName(plainCaption());
}

void Button::setIconName(const QString& name) {
    if (name == icon_.name())
        return;
    icon_ = Icon(name);
    update();
}

void Button::setLastingMnemonic(QChar key) {
    lastingMnemonic_ = key;
    setCaption(text());
}

void Button::setCaption(const QString& caption) {
    setText(caption);
    if (!lastingMnemonic_.isNull())
        setShortcut(QKeySequence(QStringLiteral("Alt+") + lastingMnemonic_.toUpper()));
    setAccessibleName(plainCaption());
}

void Button::setKind(Kind kind) {
    kind_ = kind;
    update();
}

void Button::setMnemonicShown(bool shown) {
    if (shown == mnemonicShown_)
        return;
    mnemonicShown_ = shown;
    update();
}

QString Button::plainCaption() const {
    return text().remove(u'&');
}

QSize Button::sizeHint() const {
    const double icon = icon_.isEmpty() ? 0 : kIconPx + kIconGap;
    const bool segment = kind_ == Kind::Segment;
    return {qCeil(captionWidth() + icon) + 2 * (segment ? kSegmentMargin : kSideMargin),
            segment ? kSegmentHeight : kHeight};
}

bool Button::event(QEvent* event) {
    // Pressed by its mnemonic the button acts at once, without the moment of looking pressed that
    // the base class gives it. When buttons share a letter, each press of it gives the focus to the
    // next of them, and Enter or Space then acts: the base class does that part.
    if (event->type() == QEvent::Shortcut && !static_cast<QShortcutEvent*>(event)->isAmbiguous()) {
        click();
        return true;
    }
    return QPushButton::event(event);
}

void Button::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
        // They belong to what the window scrolls; the Tab key leads from button to button.
        if (kind_ != Kind::Segment) {
            event->ignore();
            return;
        }
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Held down it acts once, like Space. The button may have the keyboard again only because
        // the same key has just closed the window that it opens.
        if (event->isAutoRepeat())
            return;
        break;
    default:
        break;
    }
    QPushButton::keyPressEvent(event);
}

void Button::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Colours now = colours();
    paintGround(painter, now);
    if (isDown())
        painter.translate(0, crisp(painter));
    paintContent(painter, now);
}

bool Button::isBlue() const {
    return kind_ == Kind::Main || (kind_ == Kind::Segment && isChecked());
}

Button::Colours Button::colours() const {
    const bool main = isBlue();
    const bool toolbar = kind_ == Kind::Toolbar;
    Colours now;
    if (!isEnabled()) {
        now.text = main && kind_ == Kind::Segment ? kMuted : kEdge; // what holds can be read
        now.icon = Icon::Style::Faded;
        if (!toolbar) {
            now.ground = main ? kVideoTrack : kIvory;
            now.edge = main ? kVideoTrack : kRule;
            now.fadedOver = now.ground;
        }
        return now;
    }
    if (main) {
        now.ground = isDown() ? kDarkBlue : underMouse() ? kHoverBlue : kBlue;
        now.edge = now.ground;
        now.text = kPaper;
        now.icon = Icon::Style::White;
        return now;
    }
    const bool touched = isDown() || underMouse();
    now.ground = isDown() ? kPressedTint : underMouse() ? kHoverTint : toolbar ? 0 : kPaper;
    now.edge = isDown() ? kDarkBlue : touched || hasFocus() ? kBlue : toolbar ? 0 : kEdge;
    now.edgePx = hasFocus() && !isDown() ? 2 : 1;
    now.text = isDown() ? kDarkBlue : kBlue;
    return now;
}

void Button::paintGround(QPainter& painter, const Colours& colours) const {
    const QRectF whole = rect();
    if (colours.edge != 0) {
        const QBrush ground =
            colours.ground == 0 ? QBrush(Qt::NoBrush) : QBrush(QColor::fromRgb(colours.ground));
        drawFrame(painter, whole, kRadius, colours.edge, ground, colours.edgePx);
    }
    if (isBlue() && hasFocus() && isEnabled())
        drawFrame(painter, whole.adjusted(3, 3, -3, -3), kRadius - 1.5, kPaper, Qt::NoBrush);
}

void Button::paintContent(QPainter& painter, const Colours& colours) const {
    painter.setPen(QColor::fromRgb(colours.text));
    painter.setFont(font());
    const double textWidth = captionWidth();
    if (place_ == IconPlace::Top) {
        icon_.paint(painter, {(width() - kIconPx) / 2, kTopIconY, kIconPx, kIconPx}, colours.icon,
                    colours.fadedOver);
        paintCaption(painter, {(width() - textWidth) / 2, kTopBaseline});
        return;
    }
    const double iconWidth = icon_.isEmpty() ? 0 : kIconPx;
    const double gap = icon_.isEmpty() || text().isEmpty() ? 0 : kIconGap;
    const double left = std::round((width() - iconWidth - gap - textWidth) / 2);
    const bool iconFirst = place_ == IconPlace::Left;
    const double iconX = iconFirst ? left : left + std::ceil(textWidth) + gap;
    icon_.paint(painter, {iconX, (height() - kIconPx) / 2, kIconPx, kIconPx}, colours.icon,
                colours.fadedOver);
    paintCaption(painter, {iconFirst ? left + iconWidth + gap : left,
                           height() / 2.0 + kMiddle * font().pixelSize()});
}

double Button::captionWidth() const {
    return QFontMetricsF(font()).horizontalAdvance(plainCaption());
}

void Button::paintCaption(QPainter& painter, QPointF baseline) const {
    const QString caption = plainCaption();
    baseline.setY(snapped(painter, baseline.y()));
    painter.drawText(baseline, caption);
    const qsizetype letter = mnemonicShown_ ? mnemonicPosition() : -1;
    if (letter < 0)
        return;
    const QFontMetricsF metrics(font());
    const double from = metrics.horizontalAdvance(caption.first(letter));
    const double to = metrics.horizontalAdvance(caption.first(letter + 1));
    const double thickness = crisp(painter);
    painter.fillRect(QRectF(baseline.x() + from, snapped(painter, baseline.y() + 1) + thickness / 2,
                            to - from, thickness),
                     painter.pen().color());
}

qsizetype Button::mnemonicPosition() const {
    if (lastingMnemonic_.isNull())
        return text().indexOf(u'&');
    return plainCaption().indexOf(lastingMnemonic_, 0, Qt::CaseInsensitive);
}

} // namespace look
