// The real programs as who does not see the screen hears them.

#include "app/screen_reading_case.h"

namespace app::test {
namespace {

using State = ScreenReader::State;

TEST_F(ScreenReading, aPageIsADocumentThatHasTheKeyboard) {
    start();
    const Object main = window("Orvalente - ");
    EXPECT_EQ(reader_.role(main), "frame");
    ASSERT_TRUE(isAt("document La chute")) << focus();
    EXPECT_EQ(outline(reader_.focused()), R"(document “La chute”
  heading “Une bille tombe”
  paragraph “Voir les lois ou le test ;”
    link “les lois”
    link “le test”
  paragraph “essayer la simulation.”
    link “la simulation”
  link “Menu”
  paragraph “v = d sur t”
  list “Liste de 2 éléments”
    list item “– un”
    list item “– deux”
  table “Tableau : 1 ligne, 2 colonnes”
    row “d t”
      cell “d”
      cell “t”)");
    EXPECT_EQ(reader_.description(reader_.find(main, "heading", "Une bille tombe")), "niveau 2");
    EXPECT_EQ(reader_.description(reader_.find(main, "heading", "La chute")), "niveau 1");

    ASSERT_TRUE(tabTo("link les lois"));
    press("Return");
    EXPECT_TRUE(hears("Les lois"));
    EXPECT_TRUE(isAt("document Les lois")) << focus();
    // A button that is switched off hands the keyboard to the page.
    ASSERT_TRUE(tabTo("push button Précédent"));
    press("Return");
    EXPECT_TRUE(hears("La chute"));
    EXPECT_TRUE(isAt("document La chute")) << focus();
}

TEST_F(ScreenReading, aTestTellsItsQuestionsAndVerdicts) {
    start();
    ASSERT_TRUE(isAt("document La chute")) << focus();
    ASSERT_TRUE(tabTo("link le test"));
    press("Return");
    const Object test = window("Exercices");
    EXPECT_EQ(reader_.role(test), "frame");
    ASSERT_TRUE(isAt("document Question 1 / 2")) << focus();
    EXPECT_EQ(outline(test), R"(frame “Exercices”
  heading “Connaissez-vous votre cours ?”
  label “La chute”
  label “Question 1 / 2”
  document “Question 1 / 2”
    paragraph “Qui tombe ?”
    paragraph “la table”
    radio button “la table”
    paragraph “la pomme”
    radio button “la pomme”
  push button “Valider la réponse”
    label “Valider la réponse”
  push button “Question suivante”
  push button “Calculatrice”
  push button “Fermer”
  list “Questions du test”
    list item “Question 1, sans réponse”
    list item “Question 2, sans réponse”)");
    ASSERT_TRUE(tabTo("radio button la table"));
    press("space");
    EXPECT_TRUE(eventually([&] { return reader_.has(reader_.focused(), State::Checked); }));
    press("Return");
    EXPECT_TRUE(hears("Question 1 / 2. Réponse fausse"));
    EXPECT_FALSE(reader_.find(test, "document", "Question 1 / 2, réponse fausse").isNull());
    EXPECT_FALSE(reader_.find(test, "list item", "Question 1, fausse").isNull());
    ASSERT_TRUE(tabTo("push button Question suivante"));
    press("Return");
    EXPECT_TRUE(hears("Question 2 / 2"));
    // The answer box is called after what it asks.
    EXPECT_TRUE(isAt("text la pesanteur :")) << focus();
}

TEST_F(ScreenReading, calculatorAndSearchTellWhatCameOut) {
    start();
    ASSERT_TRUE(isAt("document La chute")) << focus();
    press("alt+c");
    const Object calculator = window("Calculatrice");
    EXPECT_EQ(reader_.role(calculator), "frame");
    ASSERT_TRUE(isAt("text Affichage")) << focus();
    const QStringList parts = reader_.outline(calculator);
    EXPECT_EQ(parts.mid(2, 6).join(u'\n').toStdString(), R"(  panel “Angles”
    radio button “Degrés”
    radio button “Radians”
  panel “Affichage”
    radio button “Scientifique”
    radio button “Standard”)");
    for (const char* key : {"pi", "Parenthèse ouvrante", "Divisé par", "Calculer"})
        EXPECT_TRUE(parts.contains(QStringLiteral("  push button “%1”").arg(key))) << key;
    run("xdotool", {"type", "2*30"});
    press("Return");
    EXPECT_TRUE(hears("60"));
    press("alt+F4");
    ASSERT_TRUE(eventually([&] { return activeTitle().startsWith("Orvalente - "); }));

    press("ctrl+l");
    const Object search = window("Rechercher");
    EXPECT_EQ(reader_.role(search), "dialog");
    ASSERT_TRUE(isAt("text Saisir le(s) mot(s) à rechercher :")) << focus();
    run("xdotool", {"type", "xylophone"});
    press("Return");
    EXPECT_TRUE(hears("Aucune page trouvée. Essayez « Ignorer les accents »."));
    press("ctrl+a");
    run("xdotool", {"type", "change"});
    press("Return");
    EXPECT_TRUE(hears("1 page trouvée. Essayez « Ignorer les accents »."));
    EXPECT_TRUE(isAt("list item Les lois")) << focus();
}

TEST_F(ScreenReading, aModuleTellsValuesWithTheirUnits) {
    ASSERT_TRUE(QFile::copy(QStringLiteral(PROJECTILE_MODULE), course() + "/Simu23.exe"));
    start();
    ASSERT_TRUE(isAt("document La chute")) << focus();
    ASSERT_TRUE(tabTo("link la simulation"));
    press("Return");
    const Object module = window("Mouvement d’un projectile");
    EXPECT_EQ(reader_.role(module), "frame");
    const Object angle = reader_.find(module, "slider", "Angle de lancement");
    EXPECT_EQ(reader_.value(angle), 45);
    EXPECT_EQ(reader_.description(angle), "en °");
    const QString group = reader_.outline(reader_.find(module, "panel", "Astre")).join(u'|');
    EXPECT_EQ(group.toStdString(), "panel “Astre”|  radio button “Terre”|  radio button “Lune”|"
                                   "  radio button “Mars”|  radio button “Jupiter”");
    EXPECT_TRUE(reader_.has(reader_.find(module, "radio button", "Terre"), State::Checked));
    const Object readings =
        reader_.find(module, "label", "Valeurs à l’instant affiché et pour le vol entier");
    EXPECT_TRUE(reader_.description(readings).contains(u"portée\u00A0= 40,77\u00A0m"))
        << reader_.description(readings).toStdString();
}

} // namespace
} // namespace app::test
