#include "viewer/floating_menu.h"

#include "look/interface_font.h"
#include "look/menu_style.h"

#include <QFontMetrics>

namespace viewer {

namespace {

/// Most that a line of an entry takes, in pixels: longer ones end in an ellipsis.
constexpr int kWidestLine = 480;

/// Least extent, in pixels: a menu in which nothing shows still looks like one.
constexpr QSize kLeast(96, 38);

/// A caption as a menu takes it: lines end in LF, and no sign means anything else than itself.
QString entryText(const QString& caption, const QFontMetrics& metrics) {
    QStringList lines = caption.split(QStringLiteral("\r\n"));
    for (QString& line : lines)
        line = metrics.elidedText(line.replace(u'\t', u' '), Qt::ElideRight, kWidestLine)
                   .replace(u'&', QStringLiteral("&&"));
    return lines.join(u'\n');
}

} // namespace

FloatingMenu::FloatingMenu(const markup::LinkTable::Menu* entries, QWidget* parent)
    : QMenu(parent) {
    setObjectName(QStringLiteral("flottant"));
    setStyle(new look::MenuStyle(this));
    setFont(look::interfaceFont(look::kLabelPx));
    setMinimumSize(kLeast);
    for (int index = 0; index <= markup::LinkTable::kLastEntry; ++index) {
        const auto* entry = entries ? entries->slot(index) : nullptr;
        QAction* choixflot =
            addAction(entry ? entryText(entry->caption, fontMetrics()) : QString());
        choixflot->setObjectName(QStringLiteral("choixflot(%1)").arg(index));
        choixflot->setVisible(entry && !entry->caption.isEmpty());
        if (entry)
            choixflot->setData(entry->target);
    }
    connect(this, &QMenu::aboutToHide, this, &QObject::deleteLater);
}

} // namespace viewer
