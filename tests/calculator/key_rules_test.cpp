#include "calculator/key_rules.h"
#include "text/utf8.h"

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace calculator {
namespace {

/// A calculator whose keys are pressed by name: "2 multip sin EXE" or, for single characters that
/// have a key on the keyboard, by that character.
class Keys : public testing::Test, public CalculatorView {
protected:
    void showText(TextView text) override { shown.emplace_back(text); }
    void beep() override { ++beeps; }
    void breathe() override {
        if (whileBusy)
            whileBusy();
    }

    /// The entry after the keys, "|" at its ends.
    std::string entry(const char* keys) {
        press(keys);
        return "|" + text::toUtf8(rules.saisie()) + "|";
    }
    std::string display(const char* keys) {
        press(keys);
        return text::toUtf8(rules.display());
    }
    void press(const char* keys) {
        std::istringstream words(keys);
        for (std::string word; std::getline(words, word, ' ');) {
            const Text key = text::toUtf16(word);
            if (key.size() == 1)
                ASSERT_TRUE(rules.type(key.front())) << keys;
            else if (!key.empty())
                rules.press(keyNamed(key));
        }
    }

    Memory memory;
    std::vector<Text> shown;
    int beeps = 0;
    std::function<void()> whileBusy;
    KeyRules rules{memory, *this, u','};
};

TEST_F(Keys, appendTheirTexts) {
    EXPECT_EQ(entry("1 . 5 kilo"), "|1.5E+3|");
    EXPECT_EQ(entry("RAZ 2 e - 3 * mil"), "|2E-3 * E-3|");
    EXPECT_EQ(entry("RAZ 2 d + 5"), "|2E+5|");
    EXPECT_EQ(entry("RAZ pi"), "|3.14159265358979|");
    EXPECT_EQ(entry("RAZ 3 btcarre puissance"), "|3 ^ 2 ^ |");
}

TEST_F(Keys, multiplyImplicitlyBeforeAFactor) {
    EXPECT_EQ(entry("2 bsin"), "|2 * sin |");
    EXPECT_EQ(entry("( pi demi"), "|2 * sin (3.14159265358979 * 1 / 2|");
    EXPECT_EQ(entry("RAZ - B10x"), "|-10 ^ |");
    EXPECT_EQ(entry("RAZ ( 1 ) command5"), "|(1) * 1 / |");
    EXPECT_EQ(entry("RAZ 2 )"), "|2)|");
}

TEST_F(Keys, minusIsSignOrOperator) {
    EXPECT_EQ(entry("-"), "|-|");
    EXPECT_EQ(entry("-"), "|- -|");
    EXPECT_EQ(entry("RAZ 5 -"), "|5 - |");
    EXPECT_EQ(entry("-"), "|5 - -|");
    EXPECT_EQ(entry("RAZ 5 * - 3"), "|5 * -3|");
    EXPECT_EQ(entry("RAZ ( -"), "|(-|");
}

TEST_F(Keys, operatorsTakeUpTheLastAnswer) {
    EXPECT_EQ(display("2 * 3 EXE"), " 6");
    EXPECT_EQ(entry("plus"), "|6 + |");
    EXPECT_EQ(display("1 EXE"), " 7");
    EXPECT_EQ(entry("btcarre"), "|7 ^ 2|");
    EXPECT_EQ(entry("EXE bsin"), "|sin |"); // a function does not
    EXPECT_EQ(entry("ANS"), "|sin 49|");
}

TEST_F(Keys, operatorsDoNothingOnABlankDisplay) {
    press("2 EXE RAZ");
    EXPECT_EQ(entry("plus"), "||");
    EXPECT_EQ(entry("*"), "||");
    EXPECT_EQ(entry("/"), "||");
    EXPECT_EQ(entry("puissance"), "|2 ^ |"); // the power key has no such guard
}

TEST_F(Keys, eraseBackwards) {
    EXPECT_EQ(entry("1 2 * EFFACE"), "|12|");
    EXPECT_EQ(entry("* Bcos EFFACE"), "|12 * |");
    EXPECT_EQ(entry("RAZ 2 5 EFFACE"), "|2|");
    EXPECT_EQ(entry("EFFACE EFFACE"), "||");
    EXPECT_EQ(display("EXE"), " 0"); // nothing at all is zero
    EXPECT_EQ(entry("( invsin EFFACE"), "|(|");
    EXPECT_EQ(entry("RAZ Bln EFFACE"), "||");
    EXPECT_EQ(entry("RAZ - - EFFACE"), "|- |");
    EXPECT_EQ(entry("EFFACE"), "||"); // fewer than three characters are left to go
}

TEST_F(Keys, anErrorKeepsTheEntry) {
    press("1 / 0");
    EXPECT_EQ(display("EXE"), "Calcul impossible");
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(entry("ANS"), "|1 / 0|");
    EXPECT_EQ(entry("5"), "|1 / 05|");
    EXPECT_EQ(display("EXE"), " .2");
    EXPECT_EQ(entry("ANS"), "|.2|");
    EXPECT_EQ(display("( EXE"), "Erreur saisie: revoir les parenthèses");
    EXPECT_EQ(display("RAZ 2 * EXE"), "Erreur saisie: incompréhension sur opérateurs: ^ * / + -");
}

TEST_F(Keys, aResultBeyondTheRangeIsNoError) {
    EXPECT_EQ(display("9 e 9 9 9 EXE"), "Dépassement de capacité");
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(entry("ANS"), "|Dépassement de capacité|");
}

TEST_F(Keys, recallTheLastExpression) {
    press("1 + 2 EXE 9 rappel");
    EXPECT_EQ(entry("+ 1"), "|1 + 2 + 1|");
}

TEST_F(Keys, formatsShowTheResultAgain) {
    press("1 2 3 4 5 . 6 7 8 9 1 EXE");
    rules.setFormat(Format::Scientific);
    EXPECT_EQ(rules.display(), u"1.2345679E+04");
    rules.setFormat(Format::Standard);
    EXPECT_EQ(rules.display(), u" 12345.67891");
    rules.setFormat(Format::Scientific);
    EXPECT_EQ(display("5 EXE"), "5.E+00");
    press("3");
    rules.setFormat(Format::Standard);
    EXPECT_EQ(rules.display(), u"3"); // an entry stays as it is
}

// Meant so: a message reads as 0.
TEST_F(Keys, theLastAnswerTakesTheMessageToo) {
    press("5 EXE 1 / 0 EXE RAZ");
    rules.setFormat(Format::Scientific);
    EXPECT_EQ(rules.display(), u"0.E+00");
    EXPECT_EQ(entry("2 EXE ANS"), "|2.E+00|");
}

TEST_F(Keys, memoryTakesWhatTheDisplayShows) {
    press("5 Command1 RAZ 2 Command2");
    EXPECT_EQ(memory.memoire, 3);
    EXPECT_EQ(entry("RAZ 7 Command3"), "|73|"); // recalled without multiplication
    press("RAZ 1 e 9 9 9 Command1");
    EXPECT_EQ(memory.memoire, 3);
    press("command4");
    EXPECT_EQ(memory.memoire, 0);
    memory.memoire = 1.5;
    rules.setFormat(Format::Scientific);
    EXPECT_EQ(entry("RAZ Command3"), "|1,5E+00|"); // the language's own separator, on purpose
    EXPECT_EQ(display("* 2 EXE"), "2.E+00");       // ... and it ends the number
}

TEST_F(Keys, onlyTheTableIsTyped) {
    for (const char16_t other : {u',', u'x', u' ', u'=', u'\t'})
        EXPECT_FALSE(rules.type(other));
    EXPECT_EQ(entry("4 ^ 2 \r"), "||");
    EXPECT_EQ(rules.display(), u" 16");
}

TEST_F(Keys, cancelKeepsTheExpression) {
    press("1 + 2 + 3 + 4");
    whileBusy = [this] {
        EXPECT_TRUE(rules.evaluating());
        press("9 RAZ EXE");
        rules.cancel();
    };
    EXPECT_EQ(display("EXE"), "Calcul impossible");
    EXPECT_EQ(
        std::vector<Text>(shown.end() - 3, shown.end()),
        (std::vector<Text>{u"    Patience... Calculs en cours.     ", u"", u"Calcul impossible"}));
    EXPECT_EQ(rules.saisie(), u"1 + 2 + 3 + 4");
    rules.cancel(); // nothing is under way
    EXPECT_EQ(rules.display(), u"Calcul impossible");
}

TEST(Scientific, followsThePattern) {
    const std::pair<double, Text> rows[] = {
        {12345, u"1.2345E+04"},
        {5, u"5.E+00"},
        {0, u"0.E+00"},
        {-.05, u"-5.E-02"},
        {1.23456789, u"1.2345679E+00"},
        {1.00000005, u"1.0000001E+00"},
        {99999999.5, u"1.E+08"},
        {1.95e-300, u"1.95E-300"},
    };
    for (const auto& [value, expected] : rows)
        EXPECT_EQ(scientificText(value), expected);
}

} // namespace
} // namespace calculator
