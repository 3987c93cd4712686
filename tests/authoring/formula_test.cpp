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
        {"\\frac{v^2}{R}", "##NUMERATEUR|##ITA1|v|##ITA0|##EXP2|##DENOMINATEUR|"},
        {"\\frac{v_0}{R}", "##PIY-03|##ITA1|v|##ITA0|##IND0|##PIY003|##DENOMINATEUR|"},
        {"\\frac{a_0^2}{R}", "##PIY-05|##ITA1|a|##ITA0|##POLY02|##PIY005|##DENOMINATEUR|"},
        {"\\frac{1}{x^2}", "##DENOMINATEUR|##PIY005|##ITA1|x|##ITA0|##EXP2|##PIY-05|"},
        {"\\frac{1}{\\overline{AB}}", "##DENOMINATEUR|##PIY006|##ITA1|##VA1AB|"},
        {"\\frac{1}{\\sqrt{2}}", "##DENOMINATEUR|##PIY004|##SQD|"},
        {"\\sqrt{2gh}", "##SQD|2|##ITA1|gh|##ITA0|##SQF1|"},
        {"\\sqrt{\\frac{l}{g}}", "##FRACl#g|"},
        {"\\vec{F}", "##ITA1|##VE1F|"},
        {"\\overline{A'B'}", "##ITA1|##VA1A′B′|"},
        {"\\overline{\\mathrm{A'B'}}", "x |##VA1A′B′|"},
        {"\\overrightarrow{\\mathrm{AB}}", "x |##VE1AB|"},
        {"\\overrightarrow{{A}B}", "##ITA1|##VE1AB|"},
        {"\\vec{u}\\vec{v}_1", "##VE1u|##ITA0|##PIX004|##ITA1|##VE1v|"},
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
        {"|\\vec{v}|", "|##PIX002|##ITA1|##VE1v|##ITA0|##PIX002||"},
        {"\\overline{AB}^2", "##VA1AB|##ITA0|##PIX002|##EXP2|"},
        {"f'", "##ITA1|f|##ITA0|##PIX002|′"},
        {"f^{\\prime}(V)", "##PIX002|′(|##ITA1|V|##ITA0|##PIX001|)"},
        {"90^\\circ", "90° y"},
        {"299 792 458", "299_792_458 y"},
        {"0,000 12\\,\\mathrm{m}", "0,000_12_m"},
        {"\\num{12 345}", "12_345 y"},
        {"\\SI{3}{m}", "3_m y"},
        {"(1, -2 ; x)", "(1,_−2_;_|##ITA1|x"},
        {"f(x,y)", "(|##ITA1|x|##ITA0|,|##ITA1|y|##ITA0|##PIX001|)"},
        {"a:b", "a|##ITA0|_: |##ITA1|b"},
        {"{}^{A}_{Z}X", "##ITA1|##POLYZA|X"},
        {"x_i^n", "##POLYin|"},
        {"x_1^n", "##ITA1|x|##POLY1n|"},
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
        {"\\ce{C_nH_{2n+2}}", "C|##ITA1|##INDn|##ITA0|H|##IND2|##ITA1|##INDn|##ITA0|##IND+2|"},
        {"\\ce{n + ^1_0n}", "n_+_|##POLY01|n"},
        {"\\ce{2 n}", "2_n y"},
        {"\\ce{n CH2}", "##ITA1|n|##ITA0|_CH|"},
        {"\\ce{nCH2}", "##ITA1|n|##ITA0|_CH|"},
        {"\\ce{M^n+}", "M|##ITA1|##EXPn|##ITA0|##EXP+|"},
        {"\\ce{^{A}_{Z}X}", "##ITA1|##POLYZA|##ITA0|X"},
        {"\\ce{^{99m}Tc + \\gamma}", "##EXP99m|Tc_+_γ"},
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
        {"\\ce{A^2^3}", "deux indices ou deux exposants"},
        {"\\ce{\\frac A}", "« \\frac » n’est pas lu dans \\ce"},
        {"\\ce A", "il manque des accolades"},
        {"\\left. x", "après « \\left »"},
    };
    for (const Row& row : rows)
        EXPECT_THAT(faultsOf("x $" + std::string(row.tex) + "$ y\n"), HasSubstr(row.expected))
            << row.tex;
}

} // namespace
