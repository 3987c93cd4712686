#include "support/plain_words.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QTextDocument>
#include <QToolTip>
#include <QWindow>

#include <gtest/gtest.h>

namespace test_support {

namespace {

bool isHostile(const QString& words) {
    return words.contains(u"<img") || words.contains(u"&x");
}

/// Whether the tooltip of the control has the words.
bool showsInTip(QWidget& control) {
    const QString words = control.toolTip();
    if (words.isEmpty())
        return false;
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, {1, 1}, control.mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(&control, &event);
    EXPECT_EQ(QToolTip::font().family(), QStringLiteral("Liberation Sans"));
    QTextDocument tip;
    Qt::mightBeRichText(QToolTip::text()) ? tip.setHtml(QToolTip::text())
                                          : tip.setPlainText(QToolTip::text());
    const QString shown = tip.toPlainText();
    EXPECT_FALSE(shown.isEmpty());
    // Behind the words the tooltip may name a key.
    const QString keys = control.property("keys").toString();
    const auto* button = qobject_cast<QAbstractButton*>(&control);
    const QString before = words + QStringLiteral("  ");
    const bool namesKey = !keys.isEmpty() ? shown == before + keys
                                          : button && !button->shortcut().isEmpty() &&
                                                shown.startsWith(before + QStringLiteral("Alt + "));
    EXPECT_TRUE(namesKey ||
                (shown.endsWith(u'…') ? words.startsWith(shown.chopped(1)) : words == shown))
        << qPrintable(words) << " is shown as " << qPrintable(shown);
    QToolTip::hideText();
    return isHostile(words);
}

/// Menus and buttons take "&" for the sign of a mnemonic, unless it is doubled.
bool showsAsCaption(const QString& caption) {
    if (!caption.contains(u"<img"))
        return false;
    EXPECT_FALSE(QString(caption).remove(QStringLiteral("&&")).contains(u'&'))
        << qPrintable(caption);
    return true;
}

int placesIn(QWidget& control) {
    int places = showsInTip(control);
    if (const auto* label = qobject_cast<QLabel*>(&control)) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText)
            << qPrintable(label->objectName() + label->text());
        EXPECT_FALSE(label->buddy() && isHostile(label->text()));
        places += isHostile(label->text());
    }
    if (const auto* button = qobject_cast<QAbstractButton*>(&control))
        places += showsAsCaption(button->text());
    for (const QAction* action : control.actions())
        places += showsAsCaption(action->text());
    if (control.isWindow() && isHostile(control.windowTitle())) {
        const QWindow* shown = control.windowHandle();
        EXPECT_TRUE(shown && shown->title().contains(u"[*]"));
        ++places;
    }
    return places;
}

} // namespace

int expectPlainWords(QWidget& window) {
    int places = placesIn(window);
    for (QWidget* control : window.findChildren<QWidget*>())
        places += placesIn(*control);
    return places;
}

} // namespace test_support
