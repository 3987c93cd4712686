#include "viewer/toolbar.h"

#include "look/accessible_role.h"
#include "look/button.h"
#include "look/palette.h"
#include "look/pixels.h"
#include "look/tool_tip.h"

#include <QPainter>

#include <array>

namespace viewer {

namespace {

using look::Button;

constexpr int kTop = 4;
constexpr QSize kButton(64, 56);
constexpr double kRuleY = 63;

struct Row {
    const char* name;
    const char* caption;
    const char* toolTip;
    const char* icon;
    int x;
    const char* keys =
        ""; ///< beside the mnemonic of the caption, which the tooltip names otherwise
};

constexpr std::array<Row, 11> kRows = {{
    {"Command2", "Accueil", "Afficher le sommaire général", "home", 8, "Alt + S"},
    {"command6", "Ph&ysique", "Sommaire physique", "physics", 72},
    {"command5", "C&himie", "Sommaire chimie", "chemistry", 136},
    {"command4", "&Rechercher", "Moteur de recherche", "search", 216, "Ctrl + L"},
    {"Command3", "&Calculatrice", "Machine à calculer", "calculator", 280},
    {"CommandIMPRIME", "&Imprimer", "Imprimer ou configurer l'imprimante", "print", 344,
     "Ctrl + P"},
    {"Command12", "Int&ernet", "", "internet", 424},
    {"Command13", "C&rédits", "", "credits", 488},
    {"Command10", "&Aide", "Aide pour utiliser le logiciel", "help", 552, "F1"},
    {"Command8", "Actualiser", "Actualiser le logiciel", "update", 616},
    {"Command14", "&Quitter", "Quitter l'application", "quit", 728, "Ctrl + Q"},
}};

constexpr std::array<double, 2> kSeparators = {208, 416};
constexpr double kSeparatorTop = 12;
constexpr double kSeparatorHeight = 40;

} // namespace

Toolbar::Toolbar(QWidget* parent) : QWidget(parent) {
    look::setAccessibleRole(*this, QAccessible::ToolBar);
    setObjectName(QStringLiteral("toolbar"));
    setAccessibleName(QStringLiteral("Outils du cours"));
    for (const Row& row : kRows) {
        auto* button = new Button(QString::fromUtf8(row.caption),
                                  {.kind = Button::Kind::Toolbar,
                                   .icon = QString::fromLatin1(row.icon),
                                   .place = Button::IconPlace::Top},
                                  this);
        button->setObjectName(QString::fromLatin1(row.name));
        look::setToolTip(*button, QString::fromUtf8(row.toolTip), QString::fromLatin1(row.keys));
        button->setAccessibleDescription(button->toolTip());
        button->setGeometry(QRect(QPoint(row.x, kTop), kButton));
    }
}

void Toolbar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const double line = look::crisp(painter);
    const QColor ink = QColor::fromRgb(look::kRule);
    painter.fillRect(QRectF(0, kRuleY, width(), line), ink);
    for (const double x : kSeparators)
        painter.fillRect(QRectF(x, kSeparatorTop, line, kSeparatorHeight), ink);
}

} // namespace viewer
