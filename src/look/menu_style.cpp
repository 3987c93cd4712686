#include "look/menu_style.h"

#include "look/palette.h"
#include "look/pixels.h"

#include <QStyleOptionMenuItem>

namespace look {

namespace {

constexpr int kBorder = 1;
constexpr int kPadding = 4;
constexpr int kSideMargin = 16;
constexpr int kLineHeight = 18;
constexpr int kEntryMargin = 5; ///< above and below its lines
constexpr double kRadius = 3;

/// Height of the letters' middle above their foot, in parts of the size.
constexpr double kMiddle = 0.355;

/// The lines of an entry; in its text, a sign before a letter is a mnemonic unless it is doubled.
QStringList lines(const QStyleOptionMenuItem& entry) {
    QString text = entry.text;
    return text.replace(QStringLiteral("&&"), QStringLiteral("&")).split(u'\n');
}

void drawEntry(const QStyleOptionMenuItem& entry, QPainter& painter) {
    const bool chosen = entry.state & QStyle::State_Selected;
    if (chosen)
        drawFrame(painter, QRectF(entry.rect).adjusted(kPadding, 0, -kPadding, 0), kRadius, kBlue,
                  QColor::fromRgb(kHoverTint));
    painter.setFont(entry.font);
    painter.setPen(QColor::fromRgb(kBlue));
    double middle = entry.rect.top() + kEntryMargin + kLineHeight / 2.0;
    for (const QString& line : lines(entry)) {
        painter.drawText(QPointF(entry.rect.left() + kSideMargin,
                                 snapped(painter, middle + kMiddle * entry.font.pixelSize())),
                         line);
        middle += kLineHeight;
    }
}

} // namespace

MenuStyle::MenuStyle(QObject* owner) {
    setParent(owner);
}

void MenuStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
    if (element == PE_PanelMenu)
        painter->fillRect(option->rect, QColor::fromRgb(kPaper));
    else if (element == PE_FrameMenu)
        drawFrame(*painter, option->rect, 0, kEdge, Qt::NoBrush);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void MenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element == CE_MenuItem && entry)
        drawEntry(*entry, *painter);
    else if (element != CE_MenuEmptyArea)
        QProxyStyle::drawControl(element, option, painter, widget);
}

QSize MenuStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                  const QSize& contents, const QWidget* widget) const {
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type != CT_MenuItem || !entry)
        return QProxyStyle::sizeFromContents(type, option, contents, widget);
    const QFontMetricsF metrics(entry->font);
    const QStringList shown = lines(*entry);
    double width = 0;
    for (const QString& line : shown)
        width = std::max(width, metrics.horizontalAdvance(line));
    return {qCeil(width) + 2 * kSideMargin,
            static_cast<int>(shown.size()) * kLineHeight + 2 * kEntryMargin};
}

int MenuStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
    switch (metric) {
    case PM_MenuPanelWidth:
        return kBorder;
    case PM_MenuVMargin:
        return kPadding;
    case PM_MenuHMargin:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int MenuStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* result) const {
    switch (hint) {
    case SH_Menu_FlashTriggeredItem: // nothing blinks
    case SH_Menu_FadeOutOnHide:
    case SH_Menu_Scrollable:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
}

} // namespace look
