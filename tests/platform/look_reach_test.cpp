#include "look/button.h"
#include "look/check_box.h"
#include "look/dress.h"
#include "look/option_button.h"
#include "look/palette.h"
#include "look/tool_tip.h"
#include "platform/painted.h"

#include <QApplication>
#include <QHelpEvent>
#include <QScreen>
#include <QStyle>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

/// What helps to find and to hit a control.
namespace {

using namespace look;

TEST(ToolTips, standBesideTheirControlAndNameAKey) {
    QWidget window;
    window.resize(300, 200);
    Button button(QStringLiteral("&Rechercher"), {.icon = {}}, &window);
    button.setGeometry(40, 40, 120, 40);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const auto tip = [&]() -> QWidget* {
        QHelpEvent event(QEvent::ToolTip, {60, 20}, button.mapToGlobal(QPoint(60, 20)));
        QApplication::sendEvent(&button, &event);
        for (QWidget* each : QApplication::topLevelWidgets())
            if (each->inherits("QTipLabel") && each->isVisible())
                return each;
        return nullptr;
    };
    const QRect covered(button.mapToGlobal(QPoint()), button.size());
    setToolTip(button, QStringLiteral("Moteur de recherche"));
    ASSERT_TRUE(tip());
    EXPECT_FALSE(tip()->geometry().intersects(covered));
    EXPECT_TRUE(QToolTip::text().contains("Alt + R"));
    setToolTip(button, QStringLiteral("Moteur de recherche"), QStringLiteral("Ctrl + L"));
    ASSERT_TRUE(tip());
    EXPECT_TRUE(QToolTip::text().contains("Ctrl + L"));
    EXPECT_EQ(button.toolTip(), "Moteur de recherche");
    // At the foot of the screen it stands above.
    window.move(0, window.screen()->availableGeometry().bottom() - 90);
    QCoreApplication::processEvents();
    QToolTip::hideText();
    ASSERT_TRUE(tip());
    EXPECT_FALSE(tip()->geometry().intersects(QRect(button.mapToGlobal(QPoint()), button.size())));
    QToolTip::hideText();
}

TEST(Choices, canBeHitAndShowTheKeyboard) {
    QWidget window;
    CheckBox box(QStringLiteral("&Tous les mots"), &window);
    OptionButton option(QStringLiteral("Po&rtrait"), &window);
    for (QAbstractButton* choice :
         {static_cast<QAbstractButton*>(&box), static_cast<QAbstractButton*>(&option)}) {
        EXPECT_GE(choice->sizeHint().height(), 24);
        choice->resize(choice->sizeHint());
    }
    box.move(10, 10);
    option.move(10, 60);
    window.resize(200, 100);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    for (QAbstractButton* choice :
         {static_cast<QAbstractButton*>(&box), static_cast<QAbstractButton*>(&option)}) {
        window.setFocus();
        const QImage plain = painted(*choice);
        choice->setFocus(Qt::TabFocusReason);
        const QImage focused = painted(*choice);
        EXPECT_EQ(colour(focused.pixel(choice->width() - 1, 12)), colour(kBlue));
        EXPECT_NE(colour(plain.pixel(choice->width() - 1, 12)), colour(kBlue));
        QTest::mouseClick(choice, Qt::LeftButton, {}, QPoint(choice->width() - 2, 23));
        EXPECT_TRUE(choice->isChecked());
    }
}

TEST(Dress, leavesNothingOfADarkDesktop) {
    const QPalette before = QApplication::palette();
    const QFont face = QApplication::font();
    QApplication::setPalette(QPalette(QColor(250, 250, 250)));
    dressApplication();
    const QPalette light = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(30, 30, 30)));
    dressApplication();
    const QPalette dark = QApplication::palette();
    for (int role = 0; role < QPalette::NColorRoles; ++role)
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            EXPECT_EQ(dark.color(group, QPalette::ColorRole(role)),
                      light.color(group, QPalette::ColorRole(role)))
                << role;
    EXPECT_EQ(QApplication::style()->name(), "fusion");
    QApplication::setPalette(before);
    QApplication::setFont(face);
}

} // namespace
