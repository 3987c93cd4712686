#include "look/interface_font.h"
#include "look/picture_box.h"
#include "support/files.h"
#include "viewer/link_case.h"
#include "viewer/window_case.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>

namespace {

using test_support::page;

class PageSelection : public test_support::Window {
protected:
    PageSelection() {
        bench.cours.records[4] =
            page(5, QStringLiteral("##SI12\r\nPremière ligne¶\r\n##DECLIG1\r\nv = \r\n##FRACd#t\r\n"
                                   " ici¶\r\n##DECLIG1\r\n##LIERTun lien#PAG002\r\n¶\r\n"));
        show(5);
        QGuiApplication::clipboard()->setText(QStringLiteral("avant"));
    }
    QWidget* area() { return bench.control<QWidget>("PictureTEXTE"); }
    QString copied() {
        press(Qt::Key_C, Qt::ControlModifier);
        return QGuiApplication::clipboard()->text();
    }
    void drag(QPoint from, QPoint to) {
        QTest::mousePress(area(), Qt::LeftButton, {}, from);
        QTest::mouseMove(area(), to);
        QTest::mouseRelease(area(), Qt::LeftButton, {}, to);
    }
    QString chosen(const char16_t* caption) {
        QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(5, 5),
                                area()->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(area(), &asked);
        auto* menu = area()->findChild<QMenu*>(QStringLiteral("pageMenu"));
        for (QAction* entry : menu->actions())
            if (entry->text() == QStringView(caption) && entry->isEnabled())
                entry->trigger();
        menu->close();
        return QGuiApplication::clipboard()->text();
    }
};

TEST_F(PageSelection, allOfThePageIsCopiedAsItIsRead) {
    const QImage before = area()->grab().toImage();
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_NE(area()->grab().toImage(), before);
    EXPECT_EQ(copied(), QStringLiteral("Première ligne\nv = (d)/(t) ici\nun lien"));
}

TEST_F(PageSelection, theMouseSelectsLettersAndWholeFormulas) {
    drag({0, 8}, {599, 8});
    EXPECT_EQ(copied(), u"Première ligne");
    drag({1, 8}, {28, 8});
    EXPECT_TRUE(QStringLiteral("Première").startsWith(copied())) << copied().toStdString();
    EXPECT_LT(copied().size(), 8);
    const auto* box = static_cast<look::PictureBox*>(area());
    for (const page::ReadablePiece* piece : box->readablePage().pieces())
        if (piece->linear == u"(d)/(t)") {
            const QRect fraction =
                QRectF(piece->area.topLeft() / 15, piece->area.size() / 15).toAlignedRect();
            drag(fraction.center() - QPoint(fraction.width() / 2 + 1, 0),
                 fraction.center() + QPoint(fraction.width() / 2 - 1, 0));
            EXPECT_EQ(copied(), u"(d)/(t)");
        }
}

TEST_F(PageSelection, shiftAndArrowsGoByCharacterFormulaAndLine) {
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(copied(), u"Pr");
    press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(copied(), u"P");
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_TRUE(copied().startsWith(u"Première ligne\nv")) << copied().toStdString();
    for (int i = 0; i < 5; ++i)
        press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_TRUE(copied().contains(u"(d)/(t)")) << copied().toStdString();
}

TEST_F(PageSelection, withoutOneTheClipboardStays) {
    EXPECT_EQ(copied(), u"avant");
    press(Qt::Key_A, Qt::ControlModifier);
    show(2);
    EXPECT_EQ(copied(), u"avant"); // nothing is selected on the new page
    EXPECT_EQ(chosen(u"Copier"), u"avant");
}

TEST_F(PageSelection, theMenuCopiesTextAndAddress) {
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(chosen(u"Copier").startsWith(u"Première"));
    EXPECT_EQ(chosen(u"Copier l’adresse de la page"), u"PAG005");
}

using PageSelectionBesideLinks = test_support::Links;

TEST_F(PageSelectionBesideLinks, linksKeepTheirClicks) {
    show(5, QStringLiteral("avant \r\n##LIERTun lien#PAG002\r\n¶\r\n"));
    QTest::keyClick(&bench.window, Qt::Key_A, Qt::ControlModifier);
    click("Labelien(0)");
    EXPECT_EQ(shown(), u"2");
}

TEST_F(PageSelection, goesWithEscape) {
    const QImage before = area()->grab().toImage();
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Escape);
    EXPECT_EQ(area()->grab().toImage(), before);
    EXPECT_EQ(copied(), u"avant");
}

TEST_F(PageSelection, scrollsAPageThatIsLongerThanTheView) {
    QString lines;
    for (int line = 1; line <= 60; ++line)
        lines += QStringLiteral("ligne %1¶\r\n").arg(line);
    bench.cours.records[5] = page(6, QStringLiteral("##SI12\r\n") + lines);
    show(6);
    QWidget* view = area()->parentWidget();
    const auto pull = [&](int y) {
        QTest::mouseMove(area(), area()->mapFrom(view, QPoint(300, y)));
    };
    QTest::mousePress(area(), Qt::LeftButton, {}, QPoint(0, 5));
    pull(view->height() + 40);
    EXPECT_TRUE(test_support::eventually([&] { return copied().contains(u"ligne 60"); }));
    pull(-40);
    EXPECT_TRUE(test_support::eventually([&] { return area()->y() == 0; }));
    pull(20);
    const int there = area()->y();
    QTest::qWait(0);
    QTest::mouseRelease(area(), Qt::LeftButton, {}, QPoint(300, 20));
    EXPECT_EQ(area()->y(), there);
    EXPECT_FALSE(copied().contains(u"ligne 9"));
}

TEST_F(PageSelection, thePointerTellsWhereTextIs) {
    QTest::mouseMove(area(), QPoint(20, 8));
    EXPECT_EQ(area()->cursor().shape(), Qt::IBeamCursor);
    QTest::mouseMove(area(), QPoint(590, 8));
    EXPECT_EQ(area()->cursor().shape(), Qt::ArrowCursor);
    QTest::mouseMove(area(), QPoint(20, 8));
    show(5); // is another page until the pointer moves
    EXPECT_EQ(area()->cursor().shape(), Qt::ArrowCursor);
}

/// Settings programs of desktops give programs that run another font.
TEST_F(PageSelection, itsMenuKeepsTheHousesFont) {
    const QFont before = QApplication::font();
    QFont other = before;
    other.setPixelSize(2 * before.pixelSize());
    QApplication::setFont(other);
    QContextMenuEvent asked(QContextMenuEvent::Mouse, QPoint(5, 5),
                            area()->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(area(), &asked);
    auto* menu = area()->findChild<QMenu*>(QStringLiteral("pageMenu"));
    EXPECT_EQ(menu->font().pixelSize(), look::kLabelPx);
    menu->close();
    QApplication::setFont(before);
}

} // namespace
