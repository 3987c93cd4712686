#include "authoring/markdown.h"

#include <gmock/gmock.h>

#include <span>

namespace {

using testing::HasSubstr;

struct Row {
    const char* tex;
    const char* expected; ///< lines of page language, "|" between them, "_" for no-break spaces
};

std::string set(const std::string& tex) {
    std::string source = compiled("x $" + tex + "$ y\n");
    for (std::size_t at = 0; (at = source.find("\u00A0", at)) != std::string::npos;)
        source.replace(at, 2, "_");
    for (char& c : source)
        if (c == '\n')
            c = '|';
    return source;
}

void expectRows(std::span<const Row> rows) {
    for (const Row& row : rows) {
        EXPECT_EQ(faultsOf("x $" + std::string(row.tex) + "$ y\n"), "") << row.tex;
        EXPECT_THAT(set(row.tex), HasSubstr(row.expected)) << row.tex;
    }
}

TEST(Formula, isSetInTheDirectivesOfThePage) {
    const Row rows[] = {
        {"v = d", "##ITA1|v|##ITA0|_= |##ITA1|d|"},
        {"-5 + x", "−5_+_|##ITA1|x"},
        {"v_0", "##ITA1|v|##ITA0|##IND0|"},
        {"E_{c}", "##INDc|"},
        {"10^{-19}", "10|##EXP−19|"},
        {"x^n", "##ITA1|x|##EXPn|"},
        {"v_x^2", "##POLYx2|"},
        {"a_{12}^3", "##POLY13|##IND2|"},
        {"{}^{14}_{6}C", "##EXP1|##POLY64|"},
        {"\\frac{d}{t}", "##ITA1|##FRACd#t|"},
        {"\\frac{1}{2}", "##FRAC1#2|"},
        {"\\frac{a+1}{b}", "##NUMERATEUR|"},
        {"\\frac{v^2}{R}", "##PIY-03|##ITA1|v|##ITA0|##EXP2|##PIY003|##DENOMINATEUR|"},
        {"\\sqrt{2gh}", "##SQD|2|##ITA1|gh|##ITA0|##SQF1|"},
        {"\\sqrt{\\frac{l}{g}}", "##FRACl#g|"},
        {"\\vec{F}", "##ITA1|##VE1F|"},
        {"\\overline{AB}", "##VA1AB|"},
        {"\\hat{n}", "##CHAPEAU|n|"},
        {"\\lambda \\times \\Delta", "λ|##ITA0|_×_Δ"},
        {"3 \\times 10^8\\,\\mathrm{m}", "3_×_10|##EXP8|_m"},
        {"\\qty{3,0}{m.s^{-1}}", "3,0_m·s|##EXP−1|"},
        {"\\unit{kg.m.s^{-2}}", "kg·m·s|##EXP−2|"},
        {"\\cos \\theta", "cos_|##ITA1|θ"},
        {"\\left( \\frac{U}{R} \\right)^2", "##K003|"},
        {"\\{a\\}", "{|##ITA1|a|##ITA0|}"},
        {"20\\,\\%", "20_%"},
        {"F_\\text{sol/air}", "##INDsol/air|"},
        {"x' \\le 3{,}5", "′_≤ 3,5"},
    };
    expectRows(rows);
}

TEST(Chemistry, isSetInTheDirectivesOfThePage) {
    const Row rows[] = {
        {"\\ce{H2O}", "H|##IND2|O"},
        {"\\ce{2 H2O}", "2_H|##IND2|"},
        {"\\ce{2H2O}", "2_H|##IND2|"},
        {"\\ce{Na+}", "Na|##EXP+|"},
        {"\\ce{Cl-}", "Cl|##EXP−|"},
        {"\\ce{Ca^2+}", "Ca|##EXP2+|"},
        {"\\ce{Ca^{2+}}", "Ca|##EXP2+|"},
        {"\\ce{SO4^2-}", "SO|##POLY42|##EXP−|"},
        {"\\ce{NH4+}", "NH|##POLY4+|"},
        {"\\ce{Cu(OH)2(s)}", "Cu(OH)|##IND2|(s)"},
        {"\\ce{A(aq) + B(l) -> C(g)}", "A(aq)_+_B(l)_|##K104| C(g)"},
        {"\\ce{N2 + 3 H2 <=> 2 NH3}", "##K004| 2_NH|##IND3|"},
        {"\\ce{^{14}_{6}C}", "##EXP1|##POLY64|C"},
        {"\\ce{e-}", "e|##EXP−|"},
        {"\\ce{CuSO4*5H2O}", "·5_H|##IND2|O"},
        {"\\ce{CH3-CH2-OH}", "CH|##IND3|–CH|##IND2|–OH"},
        {"\\ce{C_nH_{2n}}", "C|##INDn|H|##IND2n|"},
        {"\\ce{1/2 O2}", "1/2_O|##IND2|"},
        {"\\ce{CO2 ^}", "CO|##IND2|_↑"},
    };
    expectRows(rows);
}

TEST(Formula, isRefusedWhereThePageLanguageHasNoWordsForIt) {
    const Row rows[] = {
        {"a + \\foo b", "1:8 « \\foo »"},
        {"\\frac{\\frac{a}{b}}{c}", "fraction dans une fraction"},
        {"\\sqrt{\\sqrt{2}}", "racine dans une racine"},
        {"\\sqrt[3]{x}", "racine carrée"},
        {"x^{\\frac{1}{2}}", "un indice ou un exposant"},
        {"a_b_c", "deux indices"},
        {"{a", "« { » sans « } »"},
        {"a}", "« } » sans « { »"},
        {"\\vec{F_1}", "ne va que sur des lettres"},
        {"a^", "il manque ce qui suit"},
        {"\\frac{a}", "une fraction a un numérateur"},
        {"50 % x", "s’écrit « \\% »"},
        {"\\ce{Ca2+}", "Ca^2+"},
        {"\\ce{A ->[chaleur] B}", "sur la flèche"},
        {"\\ce{A & B}", "n’est pas lu dans \\ce"},
        {"\\ce A", "il manque des accolades"},
        {"\\left. x", "après « \\left »"},
    };
    for (const Row& row : rows)
        EXPECT_THAT(faultsOf("x $" + std::string(row.tex) + "$ y\n"), HasSubstr(row.expected))
            << row.tex;
}

} // namespace
