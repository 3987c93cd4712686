#include "look/picture_box.h"
#include "support/plain_words.h"
#include "viewer/link_case.h"

#include <QAccessible>
#include <QCursor>
#include <QMenu>
#include <QPointer>
#include <QSignalSpy>

#include <gmock/gmock.h>

namespace {

using test_support::Links;
using test_support::page;
using testing::ElementsAre;

TEST_F(Links, standInTheTextAsIfThePageHadPrintedThem) {
    struct Row {
        QString plain, linked;
    };
    for (const Row& row : {
             Row{QStringLiteral("Avant, un mot, après¶\r\n"),
                 QStringLiteral("Avant, \r\n##LIERTun mot#PAG002\r\n, après¶\r\n")},
             Row{QStringLiteral("##SI16\r\n##ITA1\r\nÉlif j\r\n¶\r\n"),
                 QStringLiteral("##SI16\r\n##ITA1\r\n##LIERTÉlif j#PAG002\r\n¶\r\n")},
             Row{QStringLiteral("un¶\r\ndeux¶\r\n"),
                 QStringLiteral("##LIER1un\r\n##LIERTdeux#PAG002\r\n¶\r\n¶\r\n")},
             Row{QStringLiteral("##OBJILLUS\r\nun mot¶\r\n"),
                 QStringLiteral("##OBJILLUS\r\n##LIERTun mot#PAG002\r\n¶\r\n")},
         }) {
        for (const char* area : {"PictureTEXTE", "PICTUREILLUS"}) {
            show(3, row.plain);
            const QImage plain = picture(area);
            show(4, row.linked);
            EXPECT_EQ(picture(area), plain) << area << ": " << qPrintable(row.linked);
        }
    }
}

/// A page looks the same further down and with room below it: its edges cut nothing, neither
/// accents nor feet, nor a border.
TEST_F(Links, edgesOfThePageCutNoInk) {
    QWidget* const panel = bench.control<QWidget>("framekx")->parentWidget();
    const auto grab = [&](int below, int height) {
        return panel->grab(QRect(2, 2 + below, 612, height)).toImage();
    };
    const QString types[] = {QStringLiteral("##SI12\r\n"), QStringLiteral("##SI12\r\n##FONT02\r\n"),
                             QStringLiteral("##SI28\r\n##ITA1\r\n")};
    for (const QString& type : types)
        for (const QString& line :
             {QStringLiteral("Îlej gypaètej¶\r\n"),
              QStringLiteral("##LIERTÎlej gypaètej#PAG002\r\n¶\r\n"),
              QStringLiteral("##SI12\r\n##FRAC1#2\r\n¶\r\n"), QStringLiteral("##VE1AB\r\n¶\r\n"),
              QStringLiteral("##TAB000600 1\r\nj¶\r\n##FINTAB\r\n")}) {
            const QString page = type + line;
            show(3, page);
            const QImage atTheEdges = grab(0, 100);
            show(4, QStringLiteral("##PIY020\r\n") + page + QStringLiteral("##PIY020\r\n"));
            EXPECT_EQ(grab(20, 100), atTheEdges) << qPrintable(page);

            const QString lines = QStringLiteral("ligne¶\r\n").repeated(60);
            show(3, lines + page);
            QTest::keyClick(&bench.window, Qt::Key_End);
            const QImage atTheFoot = grab(100, 336);
            show(4, lines + page + QStringLiteral("##PIY020\r\n"));
            QTest::keyClick(&bench.window, Qt::Key_End);
            EXPECT_EQ(grab(80, 336).copy(0, 0, 590, 336), atTheFoot.copy(0, 0, 590, 336))
                << qPrintable(page);
        }
}

/// In the band of the title and in the frame of the illustration, what rises above a first line
/// shows as further down, as far as there is room.
TEST_F(Links, titleAndIllustrationShowWhatRises) {
    const auto columns = [&](const char* area, int top) {
        QWidget* const box = bench.control<QWidget>(area);
        const QRect band(box->mapTo(&bench.window, QPoint(10, top)), QSize(100, 1));
        const QImage image = bench.window.grab(band).toImage();
        int inked = 0;
        for (int x = 0; x < image.width(); ++x)
            inked += image.pixelColor(x, 0).lightness() < 128;
        return inked;
    };
    for (const auto& [directive, area, inset] :
         {std::tuple(QStringLiteral("##OBJTIT\r\n"), "titre", 0),
          std::tuple(QStringLiteral("##OBJILLUS\r\n"), "PICTUREILLUS", 1)}) {
        const QString words = QStringLiteral("##SI12\r\n##POX010\r\n##EXPMMM\r\n¶\r\n");
        show(3, directive + QStringLiteral("##PIY010\r\n") + words);
        const int further = columns(area, inset + 9);
        show(4, directive + words);
        EXPECT_GT(further, 0) << area << ": the row above the line has ink";
        EXPECT_GE(columns(area, inset - 1), further) << area;
    }
}

TEST_F(Links, scrollWithThePageAndGoWithIt) {
    show(3,
         QStringLiteral("##LIERTlien#PAG002\r\n¶\r\n") + QStringLiteral("ligne¶\r\n").repeated(60));
    const QPoint before = link("Labelien(0)")->mapTo(&bench.window, QPoint());
    QTest::keyClick(&bench.window, Qt::Key_PageDown);
    EXPECT_LT(link("Labelien(0)")->mapTo(&bench.window, QPoint()).y(), before.y() - 300);
    show(2);
    EXPECT_FALSE(link("Labelien(0)")->isVisible());
    EXPECT_EQ(link("Labelien(1)"), nullptr) << "controls are made when they are needed";
}

TEST_F(Links, picturesStandAtThePenAndAMissingKeyShowsAFrame) {
    bench.pictures.symbols[QStringLiteral("aa")] =
        std::make_shared<test_support::PlainPicture>(QSize(40, 30), Qt::red);
    show(3,
         QStringLiteral(
             "##PIY010\r\n##LIERIaaPAG002\r\n##LIERXzzUne <b>aide</b>#PAG002\r\nsuite¶\r\n¶\r\n"));
    const QImage page = picture("PictureTEXTE");
    EXPECT_EQ(page.pixelColor(0, 10), QColor(Qt::red));
    EXPECT_EQ(page.pixelColor(39, 30), QColor(Qt::red));
    EXPECT_EQ(link("Imagelien(1)")->geometry(), QRect(40, 10, 24, 24));
    EXPECT_NE(page.pixelColor(40, 20), QColor(Qt::white));
    EXPECT_NE(page.pixelColor(63, 20), QColor(Qt::white));
    QImage blank(18, 18, page.format());
    blank.fill(Qt::white);
    EXPECT_NE(page.copy(43, 13, 18, 18), blank) << "the frame holds the sign of a link";
    // The page's signs are no markup.
    EXPECT_EQ(link("Imagelien(1)")->toolTip(), QStringLiteral("Une <b>aide</b>"));
    EXPECT_EQ(link("Imagelien(0)")->cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(Links, pageIsAsTallAsItsLastLinkAndAnIllustrationOfLinksIsNotBlank) {
    const QImage blank = picture("PICTUREILLUS");
    show(3, QStringLiteral("##PIY500\r\n##LIERTbas#PAG002\r\n##OBJILLUS\r\n##LIERIzzPAG002\r\n"));
    EXPECT_GT(bench.control<QWidget>("PictureTEXTE")->height(), 510);
    EXPECT_NE(picture("PICTUREILLUS").pixel(100, 359), blank.pixel(100, 359));
}

TEST_F(Links, nobodyReachesALinkThatCannotBeSeen) {
    page::LinkOperation link;
    link.caption = link.tag = QStringLiteral("PAG002");
    show(3, QStringLiteral("##LIERTvu#PAG002\r\n¶\r\n"));
    int index = 1;
    for (const double far : {-1e6, 9000.5, 1e6, 3e38, -3e38})
        for (const bool across : {true, false}) {
            link.x = across ? far : 0;
            link.y = across ? 0 : far;
            link.index = index++;
            *bench.window.shownPage().links.Labelien.slot(link.index) = {link, true};
        }
    links.show();
    EXPECT_TRUE(this->link("Labelien(0)")->isVisible());
    for (int hidden = 1; hidden < index; ++hidden)
        EXPECT_FALSE(
            this->link(qPrintable(QStringLiteral("Labelien(%1)").arg(hidden)))->isVisible())
            << hidden;
}

// Clicks

TEST_F(Links, clickRunsTheTagUnderAnHourglass) {
    write(3,
          QStringLiteral("##LIERTpage#PAG005\r\n##LIERTmodule#EXE070\r\n##LIERTrien#pag005\r\n"));
    show(3);
    click("Labelien(1)");
    EXPECT_THAT(bench.collaborators.log,
                ElementsAre(QStringLiteral("close video"), QStringLiteral("launch 70")));
    click("Labelien(2)");
    EXPECT_EQ(shown(), QStringLiteral("3"));

    Qt::CursorShape during{};
    write(6, QStringLiteral("##LIERTbon#BDC000\r\n"));
    show(6);
    bench.collaborators.orderForm.whileOpen = [&] {
        during = link("Labelien(0)")->cursor().shape();
        click("Labelien(0)"); // no second one while the first runs
    };
    bench.collaborators.log.clear();
    click("Labelien(0)");
    EXPECT_THAT(bench.collaborators.log, ElementsAre(QStringLiteral("order form")));
    EXPECT_EQ(during, Qt::WaitCursor);
    EXPECT_EQ(link("Labelien(0)")->cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(Links, tagAndPointerSurviveAPageTurnDuringTheirOwnClick) {
    write(3, QStringLiteral("##LIERTvers quatre#PAG004\r\n"));
    write(4, QStringLiteral("##LIERTvers cinq#PAG005\r\n"));
    show(3);
    click("Labelien(0)");
    EXPECT_EQ(shown(), QStringLiteral("4"));
    EXPECT_EQ(link("Labelien(0)")->link().tag, QStringLiteral("PAG005"));
    EXPECT_EQ(link("Labelien(0)")->cursor().shape(), Qt::PointingHandCursor);
    click("Labelien(0)");
    EXPECT_EQ(shown(), QStringLiteral("5"));
    EXPECT_FALSE(link("Labelien(0)")->isVisible());
}

TEST_F(Links, pageAfterTheTestIsShownOnceWhoeverOpenedIt) {
    write(3, QStringLiteral(
                 "##LIERTtest#EXO002\r\n##LIERIzzEXO002\r\n##LIERFzz\r\n##ADMENtest#EXO002\r\n"));
    const std::function<void()> callers[] = {
        [this] { click("Labelien(0)"); },
        [this] { click("Imagelien(0)"); },
        [this] {
            click("Imagelien(1)");
            QTest::keyClick(bench.control<QMenu>("flottant"), Qt::Key_Return);
        },
    };
    bench.collaborators.exercise.whileOpen = [this] { bench.state.ExerciseReturnPage = 7; };
    for (const auto& call : callers)
        for (int time = 0; time < 2; ++time) {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            show(3);
            const auto before = bench.history();
            bench.collaborators.log.clear();
            call();
            EXPECT_EQ(bench.collaborators.log.count(QStringLiteral("exercise")), 1);
            EXPECT_EQ(shown(), QStringLiteral("7"));
            EXPECT_EQ(bench.history(), before + QList<int>{7});
        }
}

// Highlight

void moveOver(QWidget* widget) {
    QTest::mouseMove(widget, widget->rect().center());
    QTest::mouseMove(widget, widget->rect().center() + QPoint(1, 0));
}

bool isHighlighted(const viewer::LinkWidget* link) {
    return link->link().font.bold && link->link().font.underline;
}

TEST_F(Links, onlyTheLinkUnderThePointerIsHighlighted) {
    show(3,
         QStringLiteral("##LIERTpremier#PAG002\r\n##LIERTsecond#PAG002\r\n##LIERIzzPAG002\r\n texte"
                        "¶\r\n"));
    const auto* first = link("Labelien(0)");
    const auto* second = link("Labelien(1)");
    const int width = first->contentsRect().width();
    moveOver(link("Labelien(0)"));
    EXPECT_TRUE(isHighlighted(first));
    EXPECT_EQ(first->contentsRect().width(), width);
    moveOver(link("Labelien(1)"));
    EXPECT_FALSE(isHighlighted(first));
    EXPECT_TRUE(isHighlighted(second));
    // Straight there, as a quick hand moves.
    for (const char* elsewhere : {"PictureTEXTE", "Imagelien(0)", "Framebase", "titre", "toolbar",
                                  "Command2", "avant", "PICTUREILLUS"}) {
        moveOver(link("Labelien(1)"));
        QTest::mouseMove(bench.control<QWidget>(elsewhere), {3, 3});
        QTest::mouseMove(bench.control<QWidget>(elsewhere), {4, 4});
        EXPECT_FALSE(isHighlighted(second)) << elsewhere;
    }
}

TEST_F(Links, aHoveredLinkCoversNothingThatFollowsIt) {
    for (const QString& before :
         {QStringLiteral(""), QStringLiteral("##ITA1\r\n"), QStringLiteral("##BOL1\r\n")}) {
        show(3, before + QStringLiteral("##LIERTminimum imaginaire#PAG002\r\nlimite¶\r\n"));
        const QRect place = link("Labelien(0)")
                                ->contentsRect()
                                .translated(link("Labelien(0)")->geometry().topLeft());
        const QRect after(place.right() + 2, 0, 200, place.bottom());
        const QImage plain = picture("PictureTEXTE");
        moveOver(link("Labelien(0)"));
        const QImage hovered = picture("PictureTEXTE");
        EXPECT_NE(hovered.copy(place), plain.copy(place)) << qPrintable(before);
        EXPECT_EQ(hovered.copy(after), plain.copy(after)) << qPrintable(before);
        EXPECT_EQ(link("Labelien(0)")->contentsRect().size(), place.size());
        QTest::mouseMove(&bench.window, {5, 5});
    }
}

TEST_F(Links, aLinkWrittenInBoldIsPlainOnceThePointerHasPassed) {
    show(3, QStringLiteral("##BOL1\r\n##LIERTgras#PAG002\r\n##LIERTautre#PAG002\r\n"));
    EXPECT_TRUE(link("Labelien(0)")->link().font.bold);
    links.resetHighlight(1);
    EXPECT_FALSE(link("Labelien(0)")->link().font.bold);
    EXPECT_TRUE(link("Labelien(1)")->link().font.bold) << "the one kept stays as it is";
}

TEST_F(Links, aReusedLabelStartsWithoutUnderline) {
    show(3, QStringLiteral("##LIERTun#PAG002\r\n"));
    moveOver(link("Labelien(0)"));
    ASSERT_TRUE(isHighlighted(link("Labelien(0)")));
    QTest::mouseMove(&bench.window, {5, 5}); // not under the next page's links
    show(4, QStringLiteral("##PIY200\r\n##UND1\r\n##LIERTdeux#PAG002\r\n"));
    EXPECT_FALSE(link("Labelien(0)")->link().font.underline);
    EXPECT_FALSE(link("Labelien(0)")->link().font.bold);
}

// Floating menus

class FloatingMenus : public Links {
protected:
    /// Captions that the menu of a picture shows; it is then closed.
    QStringList menu(const char* picture) {
        click(picture);
        const QPointer<QMenu> flottant = bench.control<QMenu>("flottant");
        EXPECT_TRUE(flottant && flottant->isVisible());
        EXPECT_EQ(flottant->actions().size(), 10);
        EXPECT_TRUE(flottant->width() >= 96 && flottant->height() >= 38) << "looks like a menu";
        QStringList captions;
        for (const QAction* choixflot : flottant->actions())
            if (choixflot->isVisible())
                captions.append(choixflot->text());
        flottant->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(flottant.isNull()) << "ends with the popup";
        return captions;
    }
};

TEST_F(FloatingMenus, showWhatThePageGaveThem) {
    write(3, QStringLiteral(
                 "##LIERFzz\r\n##ADMENun & deux#PAG004\r\n##LIER1haut\r\n##ADMENbas#PAG005\r\n"
                 "##ADMENtrois#PAG006\r\n##LIERFzz\r\n"));
    for (int time = 0; time < 3; ++time) {
        show(3);
        EXPECT_THAT(menu("Imagelien(0)"),
                    ElementsAre(QStringLiteral("un && deux"), QStringLiteral("haut\nbas"),
                                QStringLiteral("trois")));
        EXPECT_THAT(menu("Imagelien(1)"), ElementsAre());
    }
    show(4, QStringLiteral("##LIERFzz\r\n"));
    EXPECT_THAT(menu("Imagelien(0)"), ElementsAre()) << "entries belong to their page";
}

TEST_F(FloatingMenus, comeUpAtThePointerOrBelowThePictureForAKey) {
    show(3, QStringLiteral("##PIX100\r\n##LIERFzz\r\n##ADMENquatre#PAG004\r\n"));
    viewer::LinkWidget* picture = link("Imagelien(0)");
    const auto corner = [this] { return bench.control<QMenu>("flottant")->pos(); };
    picture->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    EXPECT_EQ(corner(), picture->mapToGlobal(QPoint(0, picture->height())));
    delete bench.control<QMenu>("flottant");

    QTest::mouseMove(picture, {7, 9});
    QTest::mouseClick(picture, Qt::LeftButton, {}, {7, 9});
    EXPECT_EQ(corner(), QCursor::pos());
    EXPECT_EQ(corner(), picture->mapToGlobal(QPoint(7, 9)));
}

TEST_F(FloatingMenus, aboveNumberTwentyIsEmpty) {
    show(3, QStringLiteral("##LIERIzzPAG002\r\n").repeated(21) +
                QStringLiteral("##LIERFzz\r\n##ADMENun#PAG004\r\n"));
    EXPECT_THAT(menu("Imagelien(21)"), ElementsAre());
}

TEST_F(FloatingMenus, workWithTheKeyboard) {
    show(3, QStringLiteral("##LIERFzz\r\n##ADMENquatre#PAG004\r\n##ADMENcinq#PAG005\r\n"));
    link("Imagelien(0)")->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    QMenu* flottant = bench.control<QMenu>("flottant");
    ASSERT_TRUE(flottant);
    QTest::keyClick(flottant, Qt::Key_Down);
    QTest::keyClick(flottant, Qt::Key_Return);
    EXPECT_EQ(shown(), QStringLiteral("5"));
    EXPECT_EQ(focused(), QStringLiteral("PictureTEXTE"));
}

// Keyboard and screen readers

TEST_F(Links, tabLeadsThroughThemInReadingOrder) {
    // The second is placed first, an exponent stands above its line, the fourth is out of sight.
    show(3, QStringLiteral("##PIX300\r\n##LIERTdeux#PAG002\r\n##POX000\r\n##LIERTun#PAG002\r\n"
                           "##PIY030\r\n##LIERTtrois#PAG002\r\n##PIY900\r\n##LIERIzzPAG004\r\n"
                           "¶\r\n¶\r\n##OBJILLUS\r\n##LIERTmarge#PAG002\r\n"));
    bench.control<QWidget>("PictureTEXTE")->setFocus(Qt::TabFocusReason);
    const auto* ring = bench.control<QWidget>("focusRing");
    for (const char* name : {"Labelien(1)", "Labelien(0)", "Labelien(2)", "Imagelien(0)"}) {
        press(Qt::Key_Tab);
        EXPECT_EQ(focused(), QString::fromLatin1(name));
        const QRect place(link(name)->mapTo(&bench.window, QPoint()), link(name)->size());
        EXPECT_TRUE(ring->isVisible());
        EXPECT_TRUE(ring->geometry().contains(
            link(name)->contentsRect().translated(place.topLeft()).adjusted(-3, -3, 3, 3)));
        EXPECT_TRUE(QRect(168, 112, 624, 440).contains(place)) << name << " is scrolled into view";
    }
    press(Qt::Key_Return);
    EXPECT_EQ(shown(), QStringLiteral("4"));
    EXPECT_EQ(focused(), QStringLiteral("PictureTEXTE"));
    EXPECT_FALSE(ring->isVisible());
}

TEST_F(Links, ringOfALinkScrolledAwayIsGone) {
    show(3,
         QStringLiteral("##LIERTlien#PAG002\r\n¶\r\n") + QStringLiteral("ligne¶\r\n").repeated(60));
    link("Labelien(0)")->setFocus(Qt::TabFocusReason);
    const auto* ring = bench.control<QWidget>("focusRing");
    EXPECT_TRUE(ring->isVisible());
    press(Qt::Key_PageDown); // the link leaves it to the page
    EXPECT_FALSE(ring->isVisible());
    press(Qt::Key_Home);
    EXPECT_TRUE(ring->isVisible());
}

TEST_F(Links, screenReadersFindThemInTheTextAndByName) {
    show(3, QStringLiteral("La \r\n##FONT01\r\n##LIERTabc#PAG002\r\n##FONT00\r\n est là¶\r\n"
                           "##LIERXzzUne aide#PAG002\r\n##LIERIzzPAG012\r\n"));
    const auto reader = [this](const char* name) {
        return QAccessible::queryAccessibleInterface(bench.control<QWidget>(name));
    };
    EXPECT_EQ(reader("PictureTEXTE")->text(QAccessible::Description).trimmed(),
              QStringLiteral("La αβχ est là"));
    struct Row {
        const char* link;
        QString name;
    };
    for (const Row& row : {Row{"Labelien(0)", QStringLiteral("αβχ")},
                           Row{"Imagelien(0)", QStringLiteral("Une aide")},
                           Row{"Imagelien(1)", QStringLiteral("Lien vers la page 12")}}) {
        EXPECT_EQ(reader(row.link)->role(), QAccessible::Link);
        EXPECT_EQ(reader(row.link)->text(QAccessible::Name), row.name);
        EXPECT_EQ(reader(row.link)->text(QAccessible::Description), QString());
        // A link is in its paragraph, a picture that leads somewhere on the page itself.
        QAccessibleInterface* around = reader(row.link)->parent();
        while (around && around->role() == QAccessible::Paragraph)
            around = around->parent();
        EXPECT_EQ(around, reader("PictureTEXTE"));
    }
    reader("Imagelien(1)")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(shown(), QStringLiteral("12"));
}

// Words

TEST_F(Links, wordsOfACourseAreNeitherMarkupNorMnemonics) {
    const QString words = test_support::kHostileWords;
    bench.cours.records[2] = page(3,
                                  QStringLiteral("##LIERX") + "zz" + words + "#PAG002\r\n##LIERT" +
                                      words + "#PAG002\r\n¶\r\n##LIERFzz\r\n##ADMEN" + words +
                                      "#PAG004\r\n##TITBAR" + words + "\r\n",
                                  {{QStringLiteral("titre"), (words + u' ').repeated(20)}});
    show(3);
    bench.window.report((words + u' ').repeated(20));
    click("Imagelien(1)");
    // Title, status line (words and tooltip), picture, entry of the menu, caption of the window.
    EXPECT_EQ(test_support::expectPlainWords(bench.window), 6);
    for (const char* name : {"titre", "Labelien(0)", "Imagelien(0)"})
        EXPECT_TRUE(bench.control<QWidget>(name)->accessibleName().contains(words.simplified()))
            << name;
}

} // namespace
