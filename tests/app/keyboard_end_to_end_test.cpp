// The real program without a mouse.

#include "app/screen_reading_case.h"
#include "platform_mpv/clips.h"

#include <QScopeGuard>

namespace app::test {
namespace {

class Keyboard : public ScreenReading {
protected:
    bool isActive(const QString& title) {
        return eventually([&] { return activeTitle().startsWith(title); });
    }
    void type(const QString& text) { run("xdotool", {"type", text}); }
    bool filmIs(const QString& status) {
        const Object film = reader_.find(window("Orvalente"), "panel", "Vidéo de la page");
        return eventually([&] { return reader_.description(film) == status; });
    }
};

TEST_F(Keyboard, reachesEveryFunction) {
    ASSERT_TRUE(QFile::copy(QStringLiteral(PROJECTILE_MODULE), course() + "/Simu23.exe"));
    start();
    const std::string page1 = "document La chute", page2 = "document Les lois";
    ASSERT_TRUE(isAt(page1)) << focus();

    // Links, history, a menu, the first page.
    ASSERT_TRUE(tabTo("link les lois"));
    press("Return");
    ASSERT_TRUE(isAt(page2)) << focus();
    press("alt+Left");
    ASSERT_TRUE(isAt(page1)) << focus();
    ASSERT_TRUE(tabTo("link Menu"));
    press("Return");
    ASSERT_TRUE(isAt("menu item Les lois")) << focus();
    press("Return");
    ASSERT_TRUE(isAt(page2)) << focus();

    // Print.
    press("ctrl+p");
    ASSERT_TRUE(isActive("Imprimer"));
    press("ctrl+a");
    type(directory_.filePath("feuille.pdf"));
    press("Return");
    ASSERT_TRUE(isActive("Aperçu avant impression"));
    press("Return");
    EXPECT_TRUE(eventually([&] { return QFile::exists(directory_.filePath("feuille.pdf")); }));
    ASSERT_TRUE(isActive("Orvalente - "));

    // Search, whose page it opens; find in it.
    press("ctrl+l");
    ASSERT_TRUE(isActive("Rechercher"));
    type("change");
    press("Return");
    ASSERT_TRUE(hears("1 page trouvée. Essayez « Ignorer les accents »."));
    press("Return");
    ASSERT_TRUE(isActive("Orvalente - "));
    press("ctrl+f");
    ASSERT_TRUE(isAt("text Rechercher dans la page")) << focus();
    press("Escape");
    ASSERT_TRUE(isAt(page2)) << focus();

    // Help and calculator.
    press("F1");
    ASSERT_TRUE(isActive("Aide d’Orvalente"));
    press("Escape");
    ASSERT_TRUE(isActive("Orvalente - "));
    press("alt+c");
    ASSERT_TRUE(isActive("Calculatrice"));
    ASSERT_TRUE(tabTo("push button pi"));
    press("space");
    press("Return");
    EXPECT_TRUE(hears("3.14159265358979"));
    press("alt+F4");
    ASSERT_TRUE(isActive("Orvalente - "));

    // A whole test: a choice, a typed word, the score, the summary.
    press("alt+Home");
    ASSERT_TRUE(isAt(page1)) << focus();
    ASSERT_TRUE(tabTo("link le test"));
    press("Return");
    ASSERT_TRUE(isActive("Exercices"));
    ASSERT_TRUE(tabTo("radio button la table"));
    press("space");
    press("Return");
    ASSERT_TRUE(hears("Question 1 / 2. Réponse fausse"));
    ASSERT_TRUE(tabTo("push button Question suivante"));
    press("Return");
    ASSERT_TRUE(isAt("text la pesanteur :")) << focus();
    type("g");
    press("Return");
    ASSERT_TRUE(hears("Réponse exacte"));
    ASSERT_TRUE(isActive("Test terminé"));
    press("Return");
    ASSERT_TRUE(isAt("label Bilan du test")) << focus();
    press("Escape");
    ASSERT_TRUE(isActive("Orvalente - "));

    // A module, then the end.
    ASSERT_TRUE(tabTo("link la simulation"));
    press("Return");
    ASSERT_TRUE(isActive("Mouvement d’un projectile"));
    ASSERT_TRUE(tabTo("slider Vitesse initiale"));
    const double speed = reader_.value(reader_.focused());
    press("Right");
    EXPECT_TRUE(eventually([&] { return reader_.value(reader_.focused()) > speed; }));
    press("alt+F4");
    ASSERT_TRUE(isActive("Orvalente - "));
    press("ctrl+q");
    ASSERT_TRUE(isActive("Quitter"));
    press("Return");
    ASSERT_TRUE(shell_.waitForFinished(30'000));
    EXPECT_EQ(shell_.exitCode(), 0);
}

TEST_F(Keyboard, reachesFilmsTheOrderFormAndTheUpdate) {
    qputenv("ORVALENTE_NO_SOUND", "1");
    const auto audible = qScopeGuard([] { qunsetenv("ORVALENTE_NO_SOUND"); });
    const test_support::Clip clip{"film", "mpeg4", "12.5", 30, 0, "-g 10 -qscale:v 3"};
    ASSERT_TRUE(QFile::rename(clip.make(directory_), course() + "/film.avi"));
    start();
    ASSERT_TRUE(isAt("document La chute")) << focus();
    press("ctrl+l");
    ASSERT_TRUE(isActive("Rechercher"));
    type("commander");
    press("Return");
    ASSERT_TRUE(hears("1 page trouvée. Essayez « Ignorer les accents »."));
    press("Return");
    ASSERT_TRUE(isAt("document Le film")) << focus();

    // The film, by its buttons and by its keys.
    ASSERT_TRUE(tabTo("push button Aller à la fin"));
    press("space");
    EXPECT_TRUE(filmIs("À la fin"));
    press("Home");
    EXPECT_TRUE(filmIs("Au début"));
    press("Right");
    EXPECT_TRUE(filmIs("En pause"));
    ASSERT_TRUE(tabTo("push button Double taille"));
    press("Return");
    ASSERT_TRUE(isAt("push button Taille normale")) << focus();
    press("Escape");
    ASSERT_TRUE(isAt("push button Double taille")) << focus();

    // The order form: a field that is wrong has the keyboard again; then a sheet of it.
    ASSERT_TRUE(tabTo("link le commander"));
    press("Return");
    ASSERT_TRUE(isAt("text Nom")) << focus();
    press("alt+i");
    ASSERT_TRUE(isAt("text Nom")) << focus();
    for (const char* words : {"Curie", "Marie", "1 rue Cuvier", "", "75005", "Paris"}) {
        type(QString::fromUtf8(words));
        press("Tab");
    }
    press("alt+i");
    ASSERT_TRUE(isActive("Imprimer"));
    press("ctrl+a");
    type(directory_.filePath("bon.pdf"));
    press("Return");
    EXPECT_TRUE(eventually([&] { return QFile::exists(directory_.filePath("bon.pdf")); }));
    ASSERT_TRUE(isActive("Bon de commande"));
    press("Escape");
    ASSERT_TRUE(isActive("Orvalente - "));

    ASSERT_TRUE(tabTo("push button Actualiser"));
    press("Return");
    ASSERT_TRUE(isActive("Mise à jour"));
    ASSERT_TRUE(isAt("push button Fermer")) << focus();
    press("Return");
    ASSERT_TRUE(isActive("Orvalente - "));
}

} // namespace
} // namespace app::test
