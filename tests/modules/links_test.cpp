#include "links/link_row.h"
#include "links/links_window.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class LinksWindowTest : public testing::Test {
protected:
    LinksWindowTest() {
        window_.show();
        window_.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    }

    links::LinkRow* row(int which) {
        QList<links::LinkRow*> rows;
        for (auto* button : window_.findChildren<QAbstractButton*>()) {
            if (auto* found = dynamic_cast<links::LinkRow*>(button))
                rows += found;
        }
        return rows.at(which);
    }
    bool shows(const QString& text) {
        for (const QLabel* label : window_.findChildren<QLabel*>()) {
            if (label->text().contains(text))
                return true;
        }
        return false;
    }

    QStringList opened_;
    bool browser_ = true;
    links::LinksWindow window_{links::ownLinks(), "Édition d’essai", [this](const QUrl& address) {
                                   opened_ += address.toString();
                                   return browser_;
                               }};
};

} // namespace

TEST_F(LinksWindowTest, opensOnlyWhatIsPressed) {
    row(0)->setFocus();
    EXPECT_TRUE(shows(row(0)->link().address.toString()));
    QTest::keyClick(row(0), Qt::Key_Down);
    EXPECT_TRUE(row(1)->hasFocus());
    EXPECT_TRUE(shows(row(1)->link().address.toString()));
    EXPECT_EQ(opened_, QStringList());
    QTest::keyClick(row(1), Qt::Key_Return);
    QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"), true);
    QCoreApplication::sendEvent(window_.windowHandle(), &heldDown);
    QTest::mouseClick(row(2), Qt::LeftButton);
    EXPECT_EQ(opened_,
              QStringList({row(1)->link().address.toString(), row(2)->link().address.toString()}));
}

TEST_F(LinksWindowTest, offersTheAddressWhenThereIsNoBrowser) {
    auto* copy = window_.findChild<QPushButton*>();
    EXPECT_FALSE(copy->isVisible());
    browser_ = false;
    row(3)->click();
    EXPECT_TRUE(shows("Aucun navigateur"));
    ASSERT_TRUE(copy->isVisible());
    copy->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), row(3)->link().address.toString());
    EXPECT_FALSE(copy->isVisible());
}
