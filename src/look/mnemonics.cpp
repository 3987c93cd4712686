#include "look/mnemonics.h"

#include "look/button.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QProxyStyle>
#include <QRadioButton>
#include <QWidget>

namespace look {

/// Tells the toolkit's own controls whether to underline.
class MnemonicDisplay::Style : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        if (hint == SH_UnderlineShortcut)
            return shown;
        return QProxyStyle::styleHint(hint, option, widget, result);
    }

    bool shown = false;
};

MnemonicDisplay::MnemonicDisplay(QWidget* window)
    : QObject(window), window_(window), style_(new Style) {
    style_->setParent(this);
    window->installEventFilter(this);
    for (auto* label : window->findChildren<QLabel*>())
        if (label->buddy())
            label->setStyle(style_);
    for (auto* choice : window->findChildren<QRadioButton*>())
        choice->setStyle(style_);
    for (auto* choice : window->findChildren<QCheckBox*>())
        choice->setStyle(style_);
}

bool MnemonicDisplay::eventFilter(QObject* watched, QEvent* event) {
    const auto isAlt = [event] { return static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt; };
    switch (event->type()) {
    case QEvent::KeyPress:
        // A key that the control with the focus has no use for arrives here.
        if (watched == window_ && isAlt())
            show(true);
        break;
    case QEvent::KeyRelease:
        // Text fields keep what is let go to themselves.
        if (isAlt())
            show(false);
        break;
    case QEvent::WindowDeactivate:
        // Another window gets to know that Alt was let go.
        if (watched == window_)
            show(false);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void MnemonicDisplay::show(bool shown) {
    if (shown == shown_)
        return;
    shown_ = shown;
    if (shown)
        QCoreApplication::instance()->installEventFilter(this);
    else
        QCoreApplication::instance()->removeEventFilter(this);
    for (auto* button : window_->findChildren<QPushButton*>())
        if (auto* painted = dynamic_cast<Button*>(button))
            painted->setMnemonicShown(shown);
    style_->shown = shown;
    for (auto* control : window_->findChildren<QWidget*>())
        if (control->style() == style_)
            control->update();
}

} // namespace look
