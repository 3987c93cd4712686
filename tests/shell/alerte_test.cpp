#include "shell/alerte.h"
#include "support/files.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using shell::Alerte;
using Choice = shell::DisplayWarning::Choice;

namespace {

class FakeSettings : public platform::DisplaySettings {
public:
    bool open() override {
        ++opened;
        return thereAreSome;
    }

    int opened = 0;
    bool thereAreSome = true;
};

QPushButton& button(const Alerte& alerte, const char* name) {
    return *alerte.findChild<QPushButton*>(name);
}

/// The answer of the warning in `mode` when a person does `act`.
template <class Act>
Choice answer(std::int16_t mode, Act act) {
    FakeSettings settings;
    Alerte alerte(mode, settings, nullptr);
    QTimer::singleShot(0, &alerte, [&] { act(alerte); });
    return alerte.run();
}

} // namespace

TEST(Alerte, saysWhatItsModeAsksFor) {
    const struct {
        std::int16_t mode;
        QString text, caption;
    } rows[] = {
        {1,
         "Il n'est pas possible d'exécuter ce logiciel si la zone d'écran est inférieure à "
         "800 x 600 pixels (avec si possible 16777216 couleurs - 24 bits -).\r\nModifier ce "
         "paramètre depuis le panneau de configuration de WINDOWS.",
         "Quitter"},
        {2,
         "Il est préférable d'exécuter ce logiciel avec une zone d'écran de 800 x 600 "
         "pixels (avec si possible 16777216 couleurs - 24 bits -).\r\nModifier ce paramètre "
         "depuis le panneau de configuration de WINDOWS.",
         "Exécuter avec cette configuration"},
        {0, "Ce logiciel est prévu pour une zone d’écran de 800 x 600 pixels.", "Fermer"}};
    for (const auto& row : rows) {
        FakeSettings settings;
        const Alerte alerte(row.mode, settings, nullptr);
        EXPECT_EQ(alerte.findChild<QLabel*>("Label1")->text(), row.text);
        EXPECT_EQ(button(alerte, "Command3").text(), row.caption);
        EXPECT_FALSE(button(alerte, "Command2").isHidden());
        EXPECT_TRUE(button(alerte, "Command1").isHidden());
    }
}

TEST(Alerte, letsOneGoOnOnceTheSettingsWereAskedFor) {
    for (const bool thereAreSome : {true, false}) {
        FakeSettings settings;
        settings.thereAreSome = thereAreSome;
        Alerte alerte(1, settings, nullptr);
        const int height = alerte.height();
        button(alerte, "Command2").click();
        EXPECT_EQ(settings.opened, 1);
        EXPECT_TRUE(button(alerte, "Command2").isHidden());
        EXPECT_FALSE(button(alerte, "Command1").isHidden());
        const auto* notice = alerte.findChild<QLabel*>("notice");
        EXPECT_EQ(notice->isHidden(), thereAreSome);
        EXPECT_EQ(button(alerte, "Command1").accessibleDescription(),
                  thereAreSome ? QString() : notice->text());
        EXPECT_EQ(alerte.height() > height, !thereAreSome);
    }
}

TEST(Alerte, onlyTheButtonOfTheBlockingWarningQuits) {
    const auto clickCommand3 = [](Alerte& alerte) { button(alerte, "Command3").click(); };
    EXPECT_EQ(answer(1, clickCommand3), Choice::Quit);
    EXPECT_EQ(answer(2, clickCommand3), Choice::Continue);
    EXPECT_EQ(answer(0, clickCommand3), Choice::Continue);
    for (const std::int16_t mode : {std::int16_t{1}, std::int16_t{2}}) {
        EXPECT_EQ(answer(mode, [](Alerte& a) { a.close(); }), Choice::Continue);
        EXPECT_EQ(answer(mode, [](Alerte& a) { QTest::keyClick(&a, Qt::Key_Escape); }),
                  Choice::Continue);
        EXPECT_EQ(answer(mode,
                         [](Alerte& a) {
                             button(a, "Command2").click();
                             QTest::keyClick(a.focusWidget(), Qt::Key_Return);
                         }),
                  Choice::Continue);
    }
}

TEST(Alerte, doesNotComeBackForEverWhenTheProgramEnds) {
    // As start-up does on a screen that stays too narrow. The end closes the first window itself.
    int shown = 0;
    QTimer::singleShot(0, qApp, [&] {
        do
            ++shown;
        while (answer(1, [](Alerte&) { QCoreApplication::quit(); }) == Choice::Continue &&
               shown < 9);
    });
    QCoreApplication::exec();
    EXPECT_LE(shown, 2);
}
