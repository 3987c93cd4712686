#include "viewer/link_case.h"

#include <QAccessible>

namespace {

class AccessiblePage : public test_support::Links {
protected:
    /// Role, name and children of what screen readers see, in their order.
    QString tree(QAccessibleInterface* one) {
        static const QMap<QAccessible::Role, QString> kRoles{
            {QAccessible::Document, "page"},   {QAccessible::Heading, "titre"},
            {QAccessible::Paragraph, "texte"}, {QAccessible::Link, "lien"},
            {QAccessible::Table, "tableau"},   {QAccessible::Row, "rangée"},
            {QAccessible::Cell, "case"},       {QAccessible::List, "liste"},
            {QAccessible::ListItem, "puce"}};
        QString all =
            kRoles.value(one->role(), QStringLiteral("?")) + u' ' + one->text(QAccessible::Name);
        for (int i = 0; i < one->childCount(); ++i) {
            QAccessibleInterface* child = one->child(i);
            EXPECT_EQ(child->parent(), one) << all.toStdString();
            EXPECT_EQ(one->indexOfChild(child), i);
            all += QStringLiteral(" (") + tree(child) + u')';
        }
        return all;
    }
    QAccessibleInterface* document() {
        return QAccessible::queryAccessibleInterface(bench.control<QWidget>("PictureTEXTE"));
    }
};

TEST_F(AccessiblePage, isADocumentInTheOrderOfReading) {
    write(5, QStringLiteral("##SI16\r\n##BOL1\r\nLa chute¶\r\n##SI10\r\n##BOL0\r\n"
                            "voir \r\n##LIERTla page 2#PAG002\r\n ou non¶\r\n##DECLIG2\r\n"
                            "v = \r\n##FRACd#t\r\n¶\r\n##DECLIG2\r\n"
                            "– un¶\r\n– deux¶\r\n##DECLIG1\r\n"
                            "##TAB000090 1\r\na\r\n##TAB090160 2\r\nb¶\r\n##FINTAB\r\n"));
    show(5);
    EXPECT_EQ(tree(document()).toStdString(),
              QStringLiteral(
                  "page Page 5 (titre La chute) (texte voir la page 2 ou non (lien la page 2)) "
                  "(texte v = d sur t) "
                  "(liste Liste de 2 éléments (puce – un) (puce – deux)) "
                  "(tableau Tableau : 1 ligne, 2 colonnes (rangée a b (case a) (case b)))")
                  .toStdString());
    const QRect place = document()->child(0)->rect();
    EXPECT_TRUE(document()->rect().contains(place.center()));
    EXPECT_LT(place.bottom(), document()->child(1)->rect().bottom());
}

TEST_F(AccessiblePage, whatWasReadOfAPageGoesWithIt) {
    write(6, QStringLiteral("l’autre¶\r\n"));
    show(7, QStringLiteral("l’une¶\r\n"));
    QAccessibleInterface* line = document()->child(0);
    ASSERT_TRUE(line);
    const QAccessible::Id old = QAccessible::uniqueId(line);
    ASSERT_TRUE(line->isValid());
    show(6);
    document()->childCount(); // asks for the new ones
    EXPECT_EQ(QAccessible::accessibleInterface(old), nullptr);
    ASSERT_GT(document()->childCount(), 0);
    EXPECT_TRUE(document()->child(0)->isValid());
}

TEST_F(AccessiblePage, aPictureBesideWordsForTheSamePlaceIsNoStopOfItsOwn) {
    show(5, QStringLiteral("##LIERXzzla page#PAG002\r\n##LIERTla page 2#PAG002\r\n¶\r\n"
                           "##LIERXzzune autre#PAG003\r\n##LIERTla page 4#PAG004\r\n¶\r\n"));
    EXPECT_EQ(tree(document()).count(QStringLiteral("(lien")), 3);
    EXPECT_EQ(link("Imagelien(0)")->focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(link("Imagelien(1)")->focusPolicy(), Qt::TabFocus);
    for (const char* next : {"Labelien(0)", "Imagelien(1)", "Labelien(1)"}) {
        QTest::keyClick(&bench.window, Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), link(next)) << next;
    }
    show(6, QStringLiteral("##LIERXzzla page#PAG002\r\n"));
    EXPECT_EQ(tree(document()).count(QStringLiteral("(lien")), 1);
}

} // namespace
