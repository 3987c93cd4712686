#include "look/button.h"
#include "look/message_dialog.h"
#include "look/mnemonics.h"
#include "look/palette.h"
#include "look/scroll_bar.h"
#include "look/text_field.h"
#include "look/tool_tip.h"
#include "platform/painted.h"
#include "support/plain_words.h"

#include <QApplication>
#include <QButtonGroup>
#include <QHelpEvent>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

using namespace look;
using platform::Answer;
using platform::Message;

// Buttons

struct ButtonState {
    const char* name;
    Button::Kind kind;
    bool enabled, hovered, pressed, focused;
    QRgb edge, ground;
};

class ButtonColours : public testing::TestWithParam<ButtonState> {};

TEST_P(ButtonColours, areThoseOfTheState) {
    const ButtonState& row = GetParam();
    QWidget window;
    QPalette palette;
    palette.setColor(QPalette::Window, QColor::fromRgb(kIvory));
    window.setPalette(palette);
    window.resize(140, 60);
    Button button(QStringLiteral("Imprimer"), {.kind = row.kind, .icon = {}}, &window);
    button.setGeometry(10, 10, 112, 32);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    (row.focused ? static_cast<QWidget*>(&button) : &window)->setFocus(Qt::TabFocusReason);
    button.setEnabled(row.enabled);
    button.setAttribute(Qt::WA_UnderMouse, row.hovered);
    button.setDown(row.pressed);
    const QImage image = painted(window);
    EXPECT_EQ(colour(image.pixel(66, 10)), colour(row.edge));
    EXPECT_EQ(colour(image.pixel(16, 26)), colour(row.ground));
    // A focus border is two pixels wide; that of the main button is a white line inside.
    const QRgb second = row.kind == Button::Kind::Main ? image.pixel(66, 13) : image.pixel(66, 11);
    const QRgb wanted = !row.focused ? row.ground : row.kind == Button::Kind::Main ? kPaper : kBlue;
    EXPECT_EQ(colour(second), colour(wanted));
}

constexpr auto kOrdinary = Button::Kind::Ordinary;
constexpr auto kMain = Button::Kind::Main;
constexpr auto kToolbar = Button::Kind::Toolbar;

INSTANTIATE_TEST_SUITE_P(
    Table, ButtonColours,
    testing::Values(
        ButtonState{"ordinary_rest", kOrdinary, true, false, false, false, kEdge, kPaper},
        ButtonState{"ordinary_hover", kOrdinary, true, true, false, false, kBlue, kHoverTint},
        ButtonState{"ordinary_focus", kOrdinary, true, false, false, true, kBlue, kPaper},
        ButtonState{"ordinary_pressed", kOrdinary, true, true, true, false, kDarkBlue,
                    kPressedTint},
        ButtonState{"ordinary_disabled", kOrdinary, false, false, false, false, kRule, kIvory},
        ButtonState{"main_rest", kMain, true, false, false, false, kBlue, kBlue},
        ButtonState{"main_hover", kMain, true, true, false, false, kHoverBlue, kHoverBlue},
        ButtonState{"main_focus", kMain, true, false, false, true, kBlue, kBlue},
        ButtonState{"main_pressed", kMain, true, true, true, false, kDarkBlue, kDarkBlue},
        ButtonState{"main_disabled", kMain, false, false, false, false, kVideoTrack, kVideoTrack},
        ButtonState{"toolbar_rest", kToolbar, true, false, false, false, kIvory, kIvory},
        ButtonState{"toolbar_hover", kToolbar, true, true, false, false, kBlue, kHoverTint},
        ButtonState{"toolbar_focus", kToolbar, true, false, false, true, kBlue, kIvory},
        ButtonState{"toolbar_pressed", kToolbar, true, true, true, false, kDarkBlue, kPressedTint},
        ButtonState{"toolbar_disabled", kToolbar, false, false, false, false, kIvory, kIvory}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(SegmentButtons, showWhichOfTheRowHolds) {
    QWidget window;
    QButtonGroup row;
    for (const int x : {10, 90}) {
        auto* button = new Button(QStringLiteral("Lune"),
                                  {.kind = Button::Kind::Segment, .icon = {}}, &window);
        button->setGeometry(x, 10, 70, 26);
        row.addButton(button);
    }
    row.buttons().front()->setChecked(true);
    const auto grounds = [&] {
        const QImage image = painted(window);
        return std::pair(colour(image.pixel(16, 20)), colour(image.pixel(96, 20)));
    };
    EXPECT_EQ(grounds(), std::pair(colour(kBlue), colour(kPaper)));
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    row.buttons().front()->setFocus();
    QTest::keyClick(row.buttons().front(), Qt::Key_Right); // leads through the row
    EXPECT_EQ(grounds().second, colour(kBlue));
    for (QAbstractButton* button : row.buttons())
        button->setEnabled(false); // what holds can still be told
    EXPECT_EQ(grounds(), std::pair(colour(kIvory), colour(kVideoTrack)));
}

class Buttons : public testing::Test {
protected:
    Buttons() {
        for (Button* button : {&search, &credits})
            QObject::connect(button, &QPushButton::clicked, &window,
                             [this, button] { pressed.append(button->plainCaption()); });
        window.show();
        window.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QWidget window;
    MnemonicDisplay* mnemonics = new MnemonicDisplay(&window);
    Button search{QStringLiteral("&Rechercher"), {.icon = {}}, &window};
    Button credits{QStringLiteral("C&rédits"), {.icon = {}}, &window};
    QStringList pressed;
};

TEST_F(Buttons, sharedMnemonicGivesTheFocusInTurnAndEnterOrSpaceActs) {
    QTest::keyClick(&window, Qt::Key_R, Qt::AltModifier);
    const auto* first = QApplication::focusWidget();
    QTest::keyClick(&window, Qt::Key_R, Qt::AltModifier);
    const auto* second = QApplication::focusWidget();
    EXPECT_TRUE(pressed.isEmpty());
    EXPECT_EQ((QSet<const QWidget*>{first, second}), (QSet<const QWidget*>{&search, &credits}));

    QTest::keyClick(&search, Qt::Key_Return);
    QTest::keyClick(&credits, Qt::Key_Space);
    QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
    QCoreApplication::sendEvent(&search, &heldDown);
    EXPECT_EQ(pressed, (QStringList{QStringLiteral("Rechercher"), QStringLiteral("Crédits")}));
}

TEST_F(Buttons, mnemonicOfItsOwnActsAtOnceAndNotWhileDisabled) {
    search.setEnabled(false);
    QTest::keyClick(&window, Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(pressed, QStringList{QStringLiteral("Crédits")});
    credits.setEnabled(false);
    QTest::keyClick(&window, Qt::Key_R, Qt::AltModifier);
    QTest::mouseClick(&credits, Qt::LeftButton);
    EXPECT_EQ(pressed.size(), 1);
}

TEST_F(Buttons, lastingMnemonicOutlivesTheCaption) {
    search.setLastingMnemonic(u's');
    search.setCaption(QStringLiteral("Accueil"));
    QTest::keyClick(&window, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(pressed, QStringList{QStringLiteral("Accueil")});
    EXPECT_EQ(search.accessibleName(), QStringLiteral("Accueil"));
}

TEST_F(Buttons, underlinesMnemonicsOnlyWhileAltIsDown) {
    const QImage plain = painted(search);
    TextField field(&window);
    QPlainTextEdit text(&window);
    for (QWidget* focused :
         {&window, static_cast<QWidget*>(&field), static_cast<QWidget*>(&text)}) {
        QTest::keyPress(focused, Qt::Key_Alt, Qt::AltModifier);
        EXPECT_NE(painted(search), plain);
        QTest::keyRelease(focused, Qt::Key_Alt);
        EXPECT_EQ(painted(search), plain);
    }

    QTest::keyPress(&window, Qt::Key_Alt, Qt::AltModifier);
    QEvent left(QEvent::WindowDeactivate); // Alt is let go over another window
    QApplication::sendEvent(&window, &left);
    EXPECT_EQ(painted(search), plain);
}

// Message boxes

struct Box {
    const char* name;
    Message::Buttons buttons;
    QStringList captions;
    Answer enter, escape;
};

class MessageBoxes : public testing::TestWithParam<Box> {};

TEST_P(MessageBoxes, offerTheirButtonsAndAnswerToTheKeyboard) {
    const Box& row = GetParam();
    const auto answerTo = [&row](auto leave) {
        MessageDialog dialog({QStringLiteral("Quitter"), QStringLiteral("Attention"),
                              Message::Icon::Question, row.buttons},
                             nullptr);
        dialog.show();
        QStringList captions;
        for (const auto* button : dialog.findChildren<QPushButton*>())
            captions.append(button->text().remove(u'&'));
        EXPECT_EQ(captions, row.captions);
        leave(dialog);
        EXPECT_FALSE(dialog.isVisible());
        return dialog.answer();
    };
    EXPECT_EQ(answerTo([](QDialog& d) { QTest::keyClick(&d, Qt::Key_Return); }), row.enter);
    EXPECT_EQ(answerTo([](QDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); }), row.escape);
    EXPECT_EQ(answerTo([](QDialog& d) { d.close(); }), row.escape);
    EXPECT_EQ(answerTo([](QDialog& d) {
                  QTest::mouseClick(d.findChildren<QPushButton*>().last(), Qt::LeftButton);
              }),
              row.escape);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MessageBoxes,
    testing::Values(Box{"Ok", Message::Buttons::Ok, {QStringLiteral("OK")}, Answer::Ok, Answer::Ok},
                    Box{"OkCancel",
                        Message::Buttons::OkCancel,
                        {QStringLiteral("OK"), QStringLiteral("Annuler")},
                        Answer::Ok,
                        Answer::Cancel},
                    Box{"YesNo",
                        Message::Buttons::YesNo,
                        {QStringLiteral("Oui"), QStringLiteral("Non")},
                        Answer::Yes,
                        Answer::No},
                    Box{"RetryCancel",
                        Message::Buttons::RetryCancel,
                        {QStringLiteral("Réessayer"), QStringLiteral("Annuler")},
                        Answer::Retry,
                        Answer::Cancel}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(MessageDialog, tellsScreenReadersTitleAndText) {
    const MessageDialog dialog({QStringLiteral("Mise à jour"), QStringLiteral("un\r\ndeux"),
                                Message::Icon::Information, Message::Buttons::Ok},
                               nullptr);
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Mise à jour"));
    EXPECT_EQ(dialog.accessibleName(), QStringLiteral("Mise à jour"));
    EXPECT_EQ(dialog.accessibleDescription(), QStringLiteral("un\ndeux"));
    EXPECT_EQ(dialog.findChild<QLabel*>()->text(), QStringLiteral("un\ndeux"));
}

TEST(MessageDialog, showsTheSignOfItsKind) {
    using Kind = Message::Icon;
    for (const auto& [kind, name] :
         {std::pair(Kind::Critical, "error"), std::pair(Kind::Question, "question"),
          std::pair(Kind::Exclamation, "warning"), std::pair(Kind::Information, "info")}) {
        MessageDialog dialog(
            {QStringLiteral("Titre"), QStringLiteral("Texte"), kind, Message::Buttons::Ok},
            nullptr);
        QImage sign(48, 48, QImage::Format_RGB32);
        sign.fill(QColor::fromRgb(kIvory));
        QPainter painter(&sign);
        Icon(QString::fromLatin1(name)).paint(painter, sign.rect(), Icon::Style::Coloured);
        EXPECT_EQ(painted(dialog).copy(24, 24, 48, 48), sign) << name;
    }
}

TEST(MessageDialog, takesNoWordsForMarkup) {
    MessageDialog dialog({QStringLiteral("Titre"), test_support::kHostileWords,
                          Message::Icon::Information, Message::Buttons::Ok},
                         nullptr);
    dialog.show();
    EXPECT_EQ(test_support::expectPlainWords(dialog), 1);
}

// Tooltips

TEST(ToolTip, showsLongWordsInLinesAndVeryLongOnesInPart) {
    QLabel control;
    control.setTextFormat(Qt::PlainText);
    control.show();
    const auto tipSize = [&control](const QString& words) {
        setToolTip(control, words);
        QHelpEvent event(QEvent::ToolTip, {1, 1}, control.mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(&control, &event);
        for (const QWidget* tip : QApplication::topLevelWidgets())
            if (tip->inherits("QTipLabel") && tip->isVisible())
                return tip->size();
        return QSize();
    };
    const QSize line = tipSize(QStringLiteral("Imprimer ou configurer l'imprimante"));
    EXPECT_GT(line.width(), 6 * line.height());
    const QSize lines = tipSize(QStringLiteral("réfraction ").repeated(30));
    EXPECT_GT(lines.height(), 2 * line.height());
    EXPECT_LT(lines.width(), 700);
    EXPECT_EQ(tipSize(QStringLiteral("réfraction ").repeated(30'000)).width(), lines.width());
}

TEST(MessageDialog, growsSoThatTheWholeTextShows) {
    const auto heightFor = [](int words) {
        const MessageDialog dialog({QStringLiteral("Titre"),
                                    QStringLiteral("réfraction ").repeated(words),
                                    Message::Icon::Information, Message::Buttons::Ok},
                                   nullptr);
        const QRect text = dialog.findChild<QLabel*>()->geometry();
        EXPECT_LT(text.bottom(), dialog.findChild<QPushButton*>()->y());
        return dialog.height();
    };
    EXPECT_EQ(heightFor(3), 148);
    EXPECT_GE(heightFor(80), 148 + 10 * 20);
}

TEST(DialogMessageBoxes, waitsForTheAnswer) {
    QTimer::singleShot(0, [] {
        QWidget* dialog = QApplication::activeModalWidget();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        QTest::keyClick(dialog, Qt::Key_O, Qt::AltModifier);
        QTest::keyClick(dialog,
                        Qt::Key_Escape); // should the mnemonic fail, the test ends all the same
    });
    DialogMessageBoxes messageBoxes;
    EXPECT_EQ(messageBoxes.ask({QStringLiteral("Orvalente"), QStringLiteral("Confirmez-vous ?"),
                                Message::Icon::Question, Message::Buttons::YesNo}),
              Answer::Yes);
}

// Scroll bar: 100 pixels of track between two arrows of 16

class ScrollBars : public testing::Test {
protected:
    ScrollBars() {
        bar.resize(16, 132);
        bar.setRange(-900, 0);
        bar.setPageStep(300);
        bar.setSingleStep(20);
    }
    int after(int y) {
        bar.setValue(-400);
        QTest::mouseClick(&bar, Qt::LeftButton, {}, {8, y});
        return bar.value();
    }
    ScrollBar bar{nullptr};
};

TEST_F(ScrollBars, thumbStandsForThePartInView) {
    EXPECT_EQ(bar.thumb(), QRectF(4, 16, 8, 25));
    bar.setValue(-900);
    EXPECT_EQ(bar.thumb(), QRectF(4, 91, 8, 25));
    bar.setRange(-1'000'000, 0); // never too short to take hold of
    EXPECT_EQ(bar.thumb().height(), 24);
}

TEST_F(ScrollBars, arrowsMoveByALineAndTheTrackByAScreen) {
    EXPECT_EQ(after(5), -380);
    EXPECT_EQ(after(128), -420);
    EXPECT_EQ(after(20), -100);
    EXPECT_EQ(after(110), -700);
}

TEST_F(ScrollBars, thumbFollowsThePointerUpToTheEnds) {
    QTest::mousePress(&bar, Qt::LeftButton, {}, {8, 20});
    QTest::mouseMove(&bar, {8, 20 + 25});
    EXPECT_EQ(bar.value(), -300);
    QTest::mouseMove(&bar, {8, 500});
    EXPECT_EQ(bar.value(), -900);
    QTest::mouseMove(&bar, {8, -500});
    EXPECT_EQ(bar.value(), 0);
    QTest::mouseRelease(&bar, Qt::LeftButton);
    EXPECT_FALSE(bar.isSliderDown());
}

} // namespace
