#include "check/directive_checks.h"
#include "check/drawing_checks.h"
#include "check/file_checks.h"
#include "check/link_checks.h"
#include "check/page_checks.h"
#include "check/question_checks.h"
#include "check/rule.h"
#include "check/structure_checks.h"

#include <algorithm>

namespace check {

std::span<const Rule> ruleTable() {
    using enum Severity;
    static constexpr Rule kTable[] = {
        {"A001", "lecture", Fault, "la source ne se lit pas",
         "Les champs, l’encodage ou les fichiers sont tels que build les refuserait. La phrase dit "
         "quoi écrire à la place."},
        {"A002", "lecture-avertissement", Warning, "à la lecture, quelque chose est laissé de côté",
         "Un fichier ou un code de check.toml ne sert à rien. Le renommer, le corriger ou "
         "l’enlever."},
        {"L101", "directive-inconnue", Fault, "directive inconnue",
         "Une ligne qui commence par « ## » et n’est aucune des directives ne fait rien et ne se "
         "voit pas. Les mots-clés sont en capitales et suivent « ## » sans blanc.",
         unknownDirective},
        {"L102", "directive-avec-suite", Fault,
         "directive qui se tient seule, suivie de quelque chose",
         "CHAPEAU, POINT, FLECHE, PLOUF, STAY et les signes K se tiennent seuls sur leur ligne. Un "
         "blanc derrière eux, et ils ne comptent plus.",
         wholeDirectiveWithMore},
        {"L103", "suite-ignoree", Warning, "texte derrière une directive qui n’en lit pas",
         "Ce qui suit BOL1, FINTAB ou une autre directive sans argument n’est ni lu ni montré. Le "
         "texte s’écrit à la ligne suivante.",
         textAfterBareDirective},
        {"L104", "chiffres-manquants", Fault, "trop peu de chiffres",
         "Les nombres sont lus dans les derniers caractères, en nombre fixe : dans « ##SI9 » ce "
         "sont « I9 », qui se lit 0. Compléter par des zéros, « ##SI09 ».",
         tooFewDigits},
        {"L105", "chiffres-en-trop", Fault, "trop de chiffres",
         "Seuls les derniers caractères comptent : « ##SI120 » donne la taille 20.", tooManyDigits},
        {"L106", "nombre-illisible", Fault, "nombre qui ne se lit pas",
         "Le signe décimal est le point, et un texte qui n’est pas un nombre se lit 0, ou jusqu’au "
         "premier signe qui gêne.",
         notANumber},
        {"L107", "facteur-nul", Warning, "nombre qui se lit 0",
         "Une taille, un interligne, une racine ou un saut de 0 ne montre rien, ou écrit les "
         "lignes l’une sur l’autre.",
         factorOfZero},
        {"L108", "valeur-sans-effet", Fault, "valeur qui n’existe pas",
         "Une encre, une police, une teinte ou une couleur au-delà de la dernière ne change rien : "
         "le style d’avant reste.",
         valueWithoutEffect},
        {"L109", "accident-de-prefixe", Fault, "mot qui compte comme une autre directive",
         "Une directive compte dès que la ligne commence par son mot-clé. « ##CENTRE » commence "
         "par C, l’encre, et rend le texte noir ; « ##INDICE 2 » écrit « ICE 2 » en indice.",
         prefixAccident},
        {"L110", "diese-manquant", Fault, "il manque « # »",
         "Un lien, un choix de menu, une fraction se coupent au dernier « # » de la ligne, qui "
         "n’est pas son dernier caractère. Sans lui, la directive ne fait rien.",
         missingSharp},
        {"L111", "argument-manquant", Warning, "il manque ce qui doit suivre",
         "Une directive sans son texte, son fichier ou sa clé ne montre rien, ou montre un lien "
         "que personne ne voit.",
         missingArgument},
        {"L112", "argument-mal-forme", Warning, "suite qui n’a pas sa forme",
         "POLY veut deux signes, IJA et LIERF une clé de deux caractères, RELIEF un décalage et "
         "une couleur. Ce qui dépasse est perdu.",
         wrongSigns},
        {"L113", "surface-inconnue", Fault, "surface inconnue",
         "OBJ est suivi de TIT, ILLUS, PRINCIPAL ou TAILLE. Un autre mot remet les styles au début "
         "et ne change pas de surface.",
         unknownSurface},
        {"L114", "marque-mal-placee", Warning, "directive qui se verra comme un texte",
         "« ## » doit être au début de la ligne, sans blanc devant, et entier. Sinon la ligne "
         "s’imprime telle quelle.",
         misplacedMark},
        {"L115", "directive-ailleurs", Warning, "directive sans effet ici",
         "Les champs EXO… vont dans les questions ; les liens, les menus, VIDEO et TITBAR dans les "
         "pages. Dans une question, un lien s’écrit ##EXOLI.",
         directiveElsewhere},
        {"S201", "fin-de-ligne-manquante", Fault, "dernière ligne sans fin",
         "Ce qui suit la dernière fin de ligne n’est ni montré ni exécuté. Finir la dernière ligne "
         "par la touche Entrée.",
         unendedLine},
        {"S202", "decalage-perdu", Warning, "décalage qui ne sert pas",
         "DECABAS, DECABA2, DECAHAU et DECAHA2 valent pour la seule ligne de texte qui suit. Une "
         "ligne vide ou un second décalage les perd.",
         lostShift},
        {"S203", "rangee-ouverte", Fault, "rangée jamais fermée",
         "Une rangée qui n’est pas fermée n’a ni bords ni fond, et le texte qui suit reste dans sa "
         "dernière cellule.",
         openTable},
        {"S204", "rangee-sans-cellule", Fault, "fin de rangée sans cellule",
         "FINTAB, FINTAC, FINITAB et FTABRET ferment une rangée que TAB a ouverte. Sans elle, ils "
         "tracent les bords de la précédente.",
         rowWithoutCell},
        {"S205", "cellules-en-desordre", Warning, "cellules en désordre",
         "Les numéros des cellules d’une rangée montent à partir de 1 : le cadre va de la cellule "
         "1 à la dernière ouverte, et les bords intérieurs jusqu’à son numéro.",
         cellsOutOfOrder},
        {"S206", "bords-de-cellule", Warning, "bords de cellule impossibles",
         "Le bord droit d’une cellule est à droite du gauche, et dans la surface : 600 pixels pour "
         "la page, 150 pour la marge.",
         cellEdges},
        {"S207", "fraction-en-desordre", Fault, "fraction en désordre",
         "NUMERATEUR, DENOMINATEUR et FINFRAC viennent dans cet ordre, et ne s’emboîtent pas. "
         "Sinon la barre part de la fraction d’avant.",
         fractionOutOfOrder},
        {"S208", "racine-en-desordre", Fault, "racine en désordre",
         "SQD commence une racine, SQF la finit ; elles ne s’emboîtent pas.", rootOutOfOrder},
        {"S209", "legende-perdue", Warning, "première ligne de lien perdue",
         "LIER1 garde une ligne pour le LIERT ou l’ADMEN qui suit. Sans lui, elle ne se voit nulle "
         "part.",
         lostCaptionLine},
        {"R301", "texte-coupe", Fault, "texte coupé au bord",
         "La page mesure 600 pixels, la marge d’illustration 150, le titre 600. Rien n’est mis à "
         "la ligne par le programme : ce qui dépasse est coupé. Mesuré en dessinant vraiment la "
         "page.",
         textBeyondMargin},
        {"R302", "image-coupee", Warning, "image coupée au bord",
         "Une image dépasse de sa surface. La réduire par ##IHDEF, ou la placer autrement.",
         pictureBeyondMargin},
        {"R303", "texte-hors-cellule", Warning, "texte qui sort de sa cellule",
         "Le texte d’une cellule dépasse son bord droit et se mêle à la cellule voisine. Couper la "
         "ligne, ou élargir la cellule.",
         textBeyondCell},
        {"R304", "texte-sous-le-pied", Fault, "texte sous le pied de la page",
         "Une page s’arrête à la hauteur où la plume finit. Une dernière ligne sans « ¶ » reste "
         "dessous.",
         textBelowFoot},
        {"R305", "contraste-faible", Warning, "encre trop pâle",
         "Le contraste du texte avec son fond est plus faible que 3 (de 1, invisible, à 21, noir "
         "sur blanc) : personne ne le lit sans peine. Sur du blanc, c’est le cas des encres 007, "
         "009, 012 et 014.",
         faintInk},
        {"R306", "directive-abandonnee", Fault, "directive abandonnée",
         "Le programme n’a pas pu faire ce que dit la ligne : une valeur sort des limites.",
         abandonedStatement},
        {"R307", "titre-trop-long", Fault, "titre trop long",
         "Le titre d’une page rapetisse pour tenir dans son bandeau ; trop long même ainsi, il "
         "finit par « … ».",
         titleTooLong},
        {"N401", "cible-sans-page", Fault, "lien vers une page qui n’existe pas",
         "Un numéro que n’a aucune page montre la première du cours.", targetWithoutPage},
        {"N402", "cible-illisible", Fault, "cible illisible",
         "Une cible est PAG, EXO ou EXE en capitales et trois chiffres, ou BDC000. Une autre ne "
         "fait rien ; avec moins de chiffres, elle mène ailleurs.",
         unreadableTarget},
        {"N403", "test-inexistant", Fault, "lien vers un test qui n’existe pas",
         "EXO003 ouvre le test dont chapter.toml dit « Chapitre = 3 ».", targetWithoutTest},
        {"N404", "module-inconnu", Fault, "lien vers un module qui n’existe pas",
         "Un code EXE est le numéro d’un module (2, 7, 9, 10 ou 23), puis un chiffre pour "
         "l’exercice. Un autre est un lien mort.",
         targetWithoutProgram},
        {"N405", "trop-de-liens", Fault, "trop de liens",
         "Une page a cent liens de texte et cent liens d’image ; au-delà, les premiers "
         "disparaissent. Seuls les vingt et un premiers liens d’image peuvent être des menus.",
         tooManyLinks},
        {"N406", "menu-mal-rempli", Fault, "menu vide, trop plein ou absent",
         "LIERF ouvre un menu, que dix ADMEN au plus remplissent ensuite.", menuEntries},
        {"N407", "page-isolee", Warning, "page où rien ne mène",
         "Aucune autre page n’y mène par un lien, par son sommaire ou par ses flèches, ni aucune "
         "question.",
         pageNobodyLeadsTo},
        {"N408", "sommaire-inexistant", Fault, "sommaire qui n’existe pas",
         "Le bouton Sommaire de la page mène à un numéro que n’a aucune page.", summaryWithoutPage},
        {"P501", "numero-en-double", Fault, "numéro en double",
         "Deux pages de même Numeropage, deux tests de même Chapitre, deux questions de même "
         "REFERENCE : une seule des deux se montrera. build refuse de telles sources.",
         duplicateNumber},
        {"P502", "ordre-en-double", Warning, "deux pages à la même place",
         "Deux pages ont le même Index : les flèches n’en montrent qu’une.", duplicateOrder},
        {"P503", "trou-dans-l-ordre", Warning, "trou dans l’ordre de lecture",
         "Les Index se suivent sans trou : dans un trou, la flèche montre la première page du "
         "cours.",
         gapInOrder},
        {"P504", "voisine-absente", Fault, "flèche vers une page qui n’existe pas",
         "precedent ou suite montre une flèche, mais aucune page n’a l’Index voisin.",
         neighbourMissing},
        {"P505", "numero-hors-code", Warning, "numéro hors des codes",
         "Les codes ont trois chiffres : seules les pages de 1 à 999 peuvent être la cible d’un "
         "lien.",
         numberBeyondCodes},
        {"P506", "pas-d-accueil", Warning, "pas de page 1", "Le programme commence par PAG001.",
         noFirstPage},
        {"P507", "impression-ailleurs", Warning, "impression sans la page même",
         "De debutimp à finimp : rien ne s’imprime si le premier dépasse le second, et la page "
         "même doit y être.",
         emptyPrintRange},
        {"P508", "impression-trouee", Warning, "impression de pages qui n’existent pas",
         "De debutimp à finimp, chaque numéro s’imprime ; un numéro sans page donne la première du "
         "cours.",
         printRangeWithHoles},
        {"P509", "impression-non-imprimable", Warning, "impression d’une page non imprimable",
         "De debutimp à finimp se trouve une page où imprimable est faux : elle s’imprime quand "
         "même.",
         printRangeCrossesUnprintable},
        {"P510", "sans-titre", Advice, "page sans titre",
         "Le titre est ce que montrent la barre, l’historique, la recherche et les fichiers.",
         pageWithoutTitle},
        {"F601", "image-introuvable", Fault, "image introuvable",
         "L’image est cherchée dans le dossier du cours (files/ des sources), puis dans ZEKXDATA "
         "du disque. Introuvable, elle ne montre rien et ne prend pas de place.",
         missingPicture},
        {"F602", "video-introuvable", Fault, "vidéo introuvable",
         "La vidéo est cherchée dans le dossier du cours (files/ des sources), puis dans ZEKXV du "
         "disque.",
         missingVideo},
        {"F603", "casse-differente", Advice, "nom de fichier d’une autre casse",
         "Le programme trouve le fichier quand même ; d’autres systèmes et d’autres outils ne le "
         "trouveraient pas.",
         fileNameInOtherCase},
        {"F604", "symbole-inconnu", Fault, "symbole inconnu",
         "La liste d’images n’a pas cette clé. orvalente-cours symbols montre celles qu’elle a.",
         unknownSymbol},
        {"F605", "image-illisible", Fault, "image illisible",
         "Le fichier n’est ni BMP, ni GIF, ni JPEG, ni PNG, ni SVG, ou il est abîmé ou trop grand.",
         unreadablePicture},
        {"F606", "dessin-sans-description", Advice, "dessin sans description",
         "L’élément <title> d’un dessin SVG dit ce qu’il montre à qui ne le voit pas ; sinon, une "
         "ligne de files/descriptions.txt.",
         drawingWithoutWords},
        {"F607", "image-sans-description", Advice, "image sans description",
         "Ce que montre une photo, et qu’un lecteur d’écran dira, s’écrit entre guillemets après "
         "son nom dans le Markdown, ou dans files/descriptions.txt, une ligne par image.",
         pictureWithoutWords},
        {"Q701", "type-inconnu", Fault, "type de question inconnu",
         "Le type est 1 (cases à cocher), 2 (un seul choix) ou 3 (réponse tapée).",
         unknownQuestionType},
        {"Q702", "champs-d-un-autre-type", Fault, "champs qui ne vont pas avec le type",
         "Le type 1 va avec EXOCK, le type 2 avec EXOOP, le type 3 avec un EXOTX. Les autres "
         "champs ne comptent pas.",
         fieldsOfAnotherType},
        {"Q703", "trop-de-choix", Fault, "trop de choix",
         "Une question a cinq choix au plus ; le sixième ne se voit pas.", tooManyChoices},
        {"Q704", "solution-mal-formee", Fault, "solution mal formée",
         "Pour des choix, la solution a cinq chiffres, 1 pour chaque choix juste et 0 pour chaque "
         "autre, même s’il y a moins de cinq choix.",
         malformedSolution},
        {"Q705", "solution-sans-champ", Fault, "solution sans champ",
         "La solution demande un choix que la question n’a pas : personne ne peut y répondre.",
         solutionWithoutField},
        {"Q706", "solution-impossible", Fault, "solution que personne ne peut donner",
         "Au type 2 un seul choix peut être pris, et il en faut un. Au type 1 il faut au moins une "
         "case juste.",
         solutionNobodyCanGive},
        {"Q707", "reponse-jamais-juste", Fault, "réponse tapée qui ne peut être juste",
         "Ce qui est tapé perd ses capitales, ses accents et ses signes ; la solution reste telle "
         "quelle. Avec un accent, un trait d’union ou une virgule, elle ne va avec aucune réponse.",
         answerThatNeverFits},
        {"Q708", "nombre-tape", Warning, "nombre demandé comme réponse tapée",
         "Une réponse tapée est comparée mot à mot : « 0,5 » contient le mot « 5 ». La virgule et "
         "l’unité ne comptent pas. Demander un nombre par un choix.",
         numberAsAnswer},
        {"Q709", "nombre-de-questions", Fault, "nombre de questions",
         "Nbquest dit combien de questions le test pose : celles de référence chapitre × 100 + 1 "
         "jusqu’à ce nombre, sans trou.",
         questionCount},
        {"Q710", "question-sans-test", Warning, "question sans test",
         "La référence d’une question est le chapitre fois cent plus son numéro, et un "
         "chapter.toml a ce chapitre.",
         questionWithoutTest},
    };
    return kTable;
}

const Rule* findRule(std::string_view code) {
    const auto table = ruleTable();
    const auto found = std::find_if(table.begin(), table.end(),
                                    [&](const Rule& rule) { return rule.code == code; });
    return found == table.end() ? nullptr : &*found;
}

} // namespace check
