#include "authoring/markdown.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;

/// A no-break space shows as "_".
std::string composed(const std::string& text) {
    std::string source = compiled("Texte " + text + "\n");
    for (std::size_t at = 0; (at = source.find("\u00A0", at)) != std::string::npos;)
        source.replace(at, 2, "_");
    return source;
}

TEST(Typography, keepsTogetherWhatBelongsTogether) {
    struct {
        const char* typed;
        const char* expected;
    } rows[] = {
        {"Pourquoi ? Oui !", "Pourquoi_? Oui_!"},
        {"un : deux ; trois", "un_: deux_; trois"},
        {"« mot » et «mot»", "«_mot_» et «_mot_»"},
        {"299 792 458 m/s", "299_792_458_m/s"},
        {"page 12 345 pages", "page 12_345 pages"},
        {"10 km, 25 min, 3 minutes", "10_km, 25_min, 3 minutes"},
        {"15 °C et 20 %", "15_°C et 20_%"},
        {"4,7 kΩ", "4,7_kΩ"},
        {"a = b + c", "a_= b_+ c"},
        {"de −5 à +3", "de −5 à +3"},
        {"l'eau, aujourd'hui", "l’eau, aujourd’hui"},
        {"'mot'", "'mot'"},
        {"et...", "et…"},
        {"10:30 http://x", "10:30 http://x"},
        {"a   b", "a b"},
        {"1\u202F000\u2009m", "1_000_m"},
        {"co\u00ADupe\u200Br\uFEFF", "couper"},
    };
    for (const auto& row : rows)
        EXPECT_THAT(composed(row.typed), HasSubstr(std::string("Texte ") + row.expected))
            << row.typed;
}

TEST(Typography, seesAcrossStylesAndLines) {
    EXPECT_THAT(composed("**mot** :"), HasSubstr("mot\n##BOL0\n_:"));
    EXPECT_THAT(composed("10\nkm"), HasSubstr("10_km"));
    EXPECT_THAT(composed("un  \ndeux"), HasSubstr("un¶\ndeux¶"));
    EXPECT_THAT(composed("e\u0301te"), HasSubstr("éte"));
}

TEST(Typography, beginsNoLineWithASign) {
    std::string text;
    for (int i = 0; i < 200; ++i)
        text += std::string(static_cast<std::size_t>(1 + i % 7), 'a') + (i % 3 ? " ; " : " = ");
    const std::string source = compiled(text + "fin\n");
    for (const char* start : {"\n;", "\n=", "\n ;", "\n ="})
        EXPECT_EQ(source.find(start), std::string::npos) << start;
    EXPECT_NE(source.find("¶\na"), std::string::npos);
}

} // namespace
