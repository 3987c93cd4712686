#include "orderform/bondec.h"
#include "page/faces/font_book.h"
#include "support/fake_message_boxes.h"
#include "support/printing.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

using Outcome = platform::PrinterSetup::Outcome;

class Person : public platform::PrinterSetup {
public:
    Outcome ask() override {
        ++asked;
        return answer;
    }
    Outcome answer = Outcome::Confirmed;
    int asked = 0;
};

class Paper : public platform::Printer {
public:
    platform::Paper paper() const override { return platform::kPlainPaper; }
    bool begin(const platform::PrintJob&) override { return works; }
    bool print(const page::Sheet&) override { return ++sheets > 0; }
    bool end() override { return works; }
    QString error() const override { return QStringLiteral("l’encre manque"); }
    bool works = true;
    int sheets = 0;
};

class Bondec : public testing::Test {
protected:
    Bondec() {
        form.show();
        form.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    }

    QLineEdit& field(const char* name) {
        return *form.findChild<QLineEdit*>(QString::fromUtf8(name));
    }
    QString focused() const { return form.focusWidget()->objectName(); }
    QString total() const { return form.findChild<QLabel*>(QStringLiteral("total"))->text(); }
    void press() { form.findChild<QPushButton*>(QStringLiteral("print"))->click(); }
    void fillIn() {
        for (const char* name : {"Nom", "Prénom", "Adresse", "Ville"})
            field(name).setText(QStringLiteral("Lyon"));
        field("Code postal").setText(QStringLiteral("69003"));
    }

    Person person;
    Paper paper;
    page::FontBook fonts;
    test_support::FakeMessageBoxes messageBoxes;
    orderform::Bondec form{{person, paper, fonts}, messageBoxes, nullptr};
};

TEST_F(Bondec, enterHeldDownPrintsNothing) {
    fillIn();
    field("Pays").setFocus();
    QTest::keyClick(&field("Pays"), Qt::Key_Return);
    ASSERT_EQ(focused(), QStringLiteral("Quantité"));
    QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"), true);
    QCoreApplication::sendEvent(&field("Quantité"), &heldDown);
    EXPECT_EQ(person.asked, 0);
    QTest::keyClick(&field("Quantité"), Qt::Key_Return);
    EXPECT_EQ(person.asked, 1);
}

TEST_F(Bondec, everythingStandsInsideAndNothingOnSomethingElse) {
    QList<QWidget*> shown;
    for (auto* control : form.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (control->isVisible())
            shown.append(control);
    EXPECT_GT(shown.size(), 15);
    for (const QWidget* control : shown) {
        EXPECT_TRUE(form.rect().contains(control->geometry())) << qPrintable(control->objectName());
        const auto* label = qobject_cast<const QLabel*>(control);
        EXPECT_TRUE(!label || label->sizeHint().width() <= label->width() || label->wordWrap())
            << qPrintable(label->text());
        for (const QWidget* other : shown)
            EXPECT_TRUE(other == control || !other->geometry().intersects(control->geometry()))
                << qPrintable(control->objectName() + u'/' + other->objectName());
    }
}

TEST_F(Bondec, explainsFaultsAndLeadsToTheFirst) {
    field("Nom").setText(QStringLiteral(" Martin "));
    field("Code postal").setText(QStringLiteral("690"));
    const auto told = [this](const char* name) {
        return QAccessible::queryAccessibleInterface(&field(name))->text(QAccessible::Description);
    };
    EXPECT_EQ(told("Prénom"), QString()) << "nobody is told before the form is to be printed";
    press();
    EXPECT_EQ(person.asked, 0);
    EXPECT_EQ(focused(), QStringLiteral("Prénom"));
    EXPECT_EQ(field("Nom").text(), QStringLiteral("Martin"));
    EXPECT_EQ(told("Prénom"), QStringLiteral("Indiquez votre prénom"));
    EXPECT_TRUE(told("Code postal").contains(QStringLiteral("cinq chiffres")));
    field("Pays").setText(QStringLiteral("Belgique"));
    EXPECT_EQ(told("Code postal"), QString()) << "faults go as one types";
}

TEST_F(Bondec, totalFollowsTheQuantity) {
    EXPECT_EQ(total(), QStringLiteral("23,40\u00A0€"));
    field("Quantité").setText(QStringLiteral("3"));
    EXPECT_EQ(total(), QStringLiteral("63,20\u00A0€"));
    field("Quantité").setText(QStringLiteral("trois"));
    EXPECT_EQ(total(), QStringLiteral("—"));
}

TEST_F(Bondec, enterLeadsOnAndPrintsInTheLastField) {
    fillIn();
    QStringList way;
    for (int i = 0; i < 7; ++i) {
        way += focused();
        QTest::keyClick(form.focusWidget(), Qt::Key_Return);
    }
    EXPECT_EQ(way.join(u' '),
              QStringLiteral("Nom Prénom Adresse Complément d’adresse Code postal Ville Pays"));
    EXPECT_EQ(person.asked, 0);
    QTest::keyClick(form.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(paper.sheets, 1);
    EXPECT_TRUE(form.isVisible());
    QTest::keyClick(form.focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
}

TEST_F(Bondec, whatBecomesOfPrinting) {
    fillIn();
    person.answer = Outcome::Cancelled;
    press();
    EXPECT_EQ(person.asked, 1) << "cancelling leads back to the form";
    EXPECT_EQ(paper.sheets, 0);
    person.answer = Outcome::Confirmed;
    paper.works = false;
    press();
    ASSERT_EQ(messageBoxes.messages.size(), 1u);
    EXPECT_TRUE(messageBoxes.messages[0].text.contains(QStringLiteral("l’encre manque")));
    EXPECT_TRUE(form.isVisible());
    person.answer = Outcome::Gone;
    press();
    EXPECT_FALSE(form.isVisible());
}

} // namespace
