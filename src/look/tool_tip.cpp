#include "look/tool_tip.h"

#include "look/interface_font.h"
#include "look/palette.h"

#include <QColor>
#include <QHelpEvent>
#include <QPalette>
#include <QToolTip>
#include <QWidget>

namespace look {

namespace {

/// Characters that a tooltip shows at most, and that a line of it holds.
constexpr qsizetype kMost = 400;
constexpr qsizetype kLine = 80;

/// The toolkit wraps only what it takes for markup, and takes for markup what looks like it. So
/// that words come out as they are, they are handed over as markup in which each sign is itself.
QString asMarkup(const QString& words) {
    const bool wraps = words.size() > kLine;
    const QString shown = words.size() > kMost ? words.first(kMost) + u'…' : words;
    const QString signs = shown.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>"));
    return QStringLiteral("<div style='color:%1;margin:2px 4px;white-space:%2'>%3</div>")
        .arg(QColor::fromRgb(kInk).name(), wraps ? QStringLiteral("normal") : QStringLiteral("pre"),
             signs);
}

bool dressTips() {
    QToolTip::setFont(interfaceFont(kButtonPx));
    QPalette colours = QToolTip::palette();
    colours.setColor(QPalette::ToolTipBase, QColor::fromRgb(kPaper));
    colours.setColor(QPalette::ToolTipText, QColor::fromRgb(kEdge)); // of the border
    QToolTip::setPalette(colours);
    return true;
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

void setToolTip(QWidget& control, const QString& words) {
    static Tips tips;
    control.setToolTip(words);
    control.installEventFilter(&tips); // once, however often it is called
}

void showToolTip(QPoint place, const QString& words, QWidget& control) {
    [[maybe_unused]] static const bool dressed = dressTips();
    QToolTip::showText(place, words.isEmpty() ? QString() : asMarkup(words), &control);
}

} // namespace look
