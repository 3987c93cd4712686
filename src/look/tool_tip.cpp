#include "look/tool_tip.h"

#include "look/interface_font.h"
#include "look/palette.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColor>
#include <QHelpEvent>
#include <QPalette>
#include <QScreen>
#include <QToolTip>
#include <QWidget>

#include <algorithm>

namespace look {

namespace {

/// Characters that a tooltip shows at most, and that a line of it holds.
constexpr qsizetype kMost = 400;
constexpr qsizetype kLine = 80;

/// The name of a property.
constexpr char kKeys[] = "keys";

// In pixels: controls up to this height have their tooltips below them, so far away.
constexpr int kTallest = 80;
constexpr int kGap = 4;

/// The toolkit wraps only what it takes for markup, and takes for markup what looks like it. So
/// that words come out as they are, they are handed over as markup in which each sign is itself.
QString asMarkup(const QString& words, const QString& keys) {
    const bool wraps = words.size() > kLine;
    const QString shown = words.size() > kMost ? words.first(kMost) + u'…' : words;
    const QString signs = shown.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>"));
    const QString hint = keys.isEmpty() ? QString()
                                        : QStringLiteral("&nbsp;&nbsp;<span style='color:%1'>")
                                                  .arg(QColor::fromRgb(kMuted).name()) +
                                              keys.toHtmlEscaped() + QStringLiteral("</span>");
    return QStringLiteral("<div style='color:%1;margin:3px 5px;white-space:%2'>")
               .arg(QColor::fromRgb(kInk).name(),
                    wraps ? QStringLiteral("normal") : QStringLiteral("pre")) +
           signs + hint + QStringLiteral("</div>");
}

/// A face or colours for the whole program would take those of the tooltips away.
void dressTips() {
    const QFont face = interfaceFont(kLabelPx);
    QPalette colours = QToolTip::palette();
    if (QToolTip::font() == face && colours.color(QPalette::ToolTipText).rgb() == kEdge)
        return;
    QToolTip::setFont(face);
    colours.setColor(QPalette::ToolTipBase, QColor::fromRgb(kPaper));
    colours.setColor(QPalette::ToolTipText, QColor::fromRgb(kEdge)); // of the border
    QToolTip::setPalette(colours);
}

/// The key that does what the control does, as a person reads it; empty when there is none.
QString keysOf(const QWidget& control) {
    const QString keys = control.property(kKeys).toString();
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    if (!keys.isEmpty() || !button)
        return keys;
    return button->shortcut().toString().replace(u'+', QStringLiteral(" + "));
}

/// The label that the toolkit shows tooltips in; null while there is none.
QWidget* shownTip() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        if (window->inherits("QTipLabel") && window->isVisible())
            return window;
    return nullptr;
}

/// Moves the tooltip off the control, within the screen.
void placeBeside(const QWidget& control) {
    QWidget* tip = shownTip();
    if (!tip || control.height() > kTallest)
        return;
    const QRect room = control.screen()->availableGeometry();
    const QRect covered(control.mapToGlobal(QPoint()), control.size());
    QRect placed(covered.left(), covered.bottom() + kGap, tip->width(), tip->height());
    if (placed.bottom() > room.bottom())
        placed.moveBottom(covered.top() - kGap);
    placed.moveRight(std::min(placed.right(), room.right()));
    placed.moveLeft(std::max(placed.left(), room.left()));
    tip->move(placed.topLeft());
}

/// Shows the tooltips of the controls that it watches.
class Tips : public QObject {
protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        auto& control = static_cast<QWidget&>(*watched);
        if (event->type() != QEvent::ToolTip || control.toolTip().isEmpty())
            return false;
        showToolTip(static_cast<QHelpEvent*>(event)->globalPos(), control.toolTip(), control);
        return true;
    }
};

} // namespace

void setToolTip(QWidget& control, const QString& words, const QString& keys) {
    static Tips tips;
    control.setToolTip(words);
    control.setProperty(kKeys, keys);
    control.installEventFilter(&tips); // once, however often it is called
}

void showToolTip(QPoint place, const QString& words, QWidget& control) {
    dressTips();
    QToolTip::showText(place, words.isEmpty() ? QString() : asMarkup(words, keysOf(control)),
                       &control);
    placeBeside(control);
}

} // namespace look
