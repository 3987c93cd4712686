#pragma once

#include <QProxyStyle>

namespace look {

/// How the popup menus of all windows look: white paper with a fine border, entries in blue, the
/// chosen one tinted as a button under the pointer. An entry may have several lines (separated by
/// LF). Menus have neither icons nor check marks.
class MenuStyle : public QProxyStyle {
public:
    explicit MenuStyle(QObject* owner);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override;
};

} // namespace look
