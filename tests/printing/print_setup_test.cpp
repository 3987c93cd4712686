#include "look/palette.h"
#include "look/print_setup.h"
#include "look/print_setup_dialog.h"
#include "support/fake_message_boxes.h"
#include "support/files.h"
#include "support/printing.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

using Outcome = platform::PrinterSetup::Outcome;
using platform::Answer;

class PrintSetup : public testing::Test {
protected:
    static QPushButton* button(QWidget& dialog, const QString& caption) {
        for (auto* candidate : dialog.findChildren<QPushButton*>())
            if (candidate->text().remove(u'&') == caption)
                return candidate;
        ADD_FAILURE() << "no button " << qPrintable(caption);
        return nullptr;
    }

    QString path(const QString& name) const { return directory.filePath(name); }

    QTemporaryDir directory;
    test_support::FakeMessageBoxes messageBoxes;
};

TEST_F(PrintSetup, enterHeldDownConfirmsNothingAndTabStopsAtTheChosenOption) {
    look::PrintSetupDialog dialog(
        {QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape, {10, 10, 10, 10}),
         path("a.pdf")},
        messageBoxes, nullptr);
    dialog.show();
    QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"), true);
    QCoreApplication::sendEvent(dialog.focusWidget(), &heldDown);
    EXPECT_TRUE(dialog.isVisible());
    for (const auto* option : dialog.findChildren<QRadioButton*>())
        EXPECT_EQ((option->focusPolicy() & Qt::TabFocus) != 0, option->isChecked());
}

TEST_F(PrintSetup, theControlsGiveTheLayout) {
    look::PrintSetupDialog dialog({QPageLayout(QPageSize(QPageSize::A5), QPageLayout::Landscape,
                                               {12, 13, 14, 15}, QPageLayout::Millimeter),
                                   path("a.pdf")},
                                  messageBoxes, nullptr);
    const auto shown = dialog.settings();
    EXPECT_EQ(shown.layout.pageSize().id(), QPageSize::A5);
    EXPECT_EQ(shown.layout.orientation(), QPageLayout::Landscape);
    EXPECT_EQ(shown.layout.margins(QPageLayout::Millimeter), QMarginsF(12, 13, 14, 15));
    EXPECT_EQ(shown.file, path("a.pdf"));

    dialog.show();
    dialog.findChild<QComboBox*>()->setCurrentText("A3");
    dialog.findChildren<QRadioButton*>().first()->click();
    dialog.findChildren<QSpinBox*>().first()->setValue(25);
    auto* file = dialog.findChild<QLineEdit*>("file");
    file->setText(path("b"));
    button(dialog, "OK")->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    const auto chosen = dialog.settings();
    EXPECT_EQ(chosen.layout.pageSize().id(), QPageSize::A3);
    EXPECT_EQ(chosen.layout.orientation(), QPageLayout::Portrait);
    EXPECT_EQ(chosen.layout.margins(QPageLayout::Millimeter), QMarginsF(25, 13, 14, 15));
    EXPECT_EQ(chosen.file, path("b.pdf"));
}

TEST_F(PrintSetup, theToolkitsControlsLookLikeOurOwn) {
    using namespace look;
    look::PrintSetupDialog dialog({QPageLayout(), path("a.pdf")}, messageBoxes, nullptr);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    const auto edgeOf = [&](const QWidget* control) {
        return dialog.grab().toImage().pixel(control->mapTo(&dialog, QPoint(0, 16)));
    };
    EXPECT_EQ(dialog.grab().toImage().pixel(2, 2), kIvory);
    QWidget* size = dialog.findChild<QComboBox*>();
    EXPECT_EQ(edgeOf(size), kEdge);
    EXPECT_EQ(edgeOf(dialog.findChildren<QSpinBox*>().last()), kEdge);
    EXPECT_EQ(edgeOf(dialog.findChild<QLineEdit*>("file")), kBlue) << "has the keyboard";
    size->setFocus();
    EXPECT_EQ(edgeOf(size), kBlue);
    for (const auto* field : dialog.findChildren<QSpinBox*>())
        EXPECT_EQ(field->height(), size->height());
    // Mnemonics are shown by the captions of fields and choices too.
    const QImage plain = dialog.grab().toImage();
    QTest::keyPress(size, Qt::Key_Alt, Qt::AltModifier);
    const QImage underlined = dialog.grab().toImage();
    for (const auto* choice : dialog.findChildren<QRadioButton*>())
        EXPECT_NE(underlined.copy(choice->geometry()), plain.copy(choice->geometry()));
    QTest::keyClick(size, Qt::Key_Y, Qt::AltModifier);
    EXPECT_EQ(dialog.settings().layout.orientation(), QPageLayout::Landscape);
}

TEST_F(PrintSetup, theFileIsLookedForWhereItStands) {
    ASSERT_TRUE(QDir(directory.path()).mkdir("cours"));
    const struct {
        QString file, directory, name;
    } rows[] = {{path("cours/a.pdf"), path("cours"), "a.pdf"},
                {path("nulle/part.pdf"), QDir::homePath(), "part.pdf"}};
    for (const auto& row : rows) {
        look::PrintSetupDialog dialog({QPageLayout(), row.file}, messageBoxes, nullptr);
        dialog.show();
        QTimer::singleShot(0, [&row] {
            auto* files = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(files);
            EXPECT_EQ(files->directory().path(), row.directory);
            EXPECT_EQ(files->findChild<QLineEdit*>("fileNameEdit")->text(), row.name);
            files->setDirectory(row.directory);
            files->findChild<QLineEdit*>("fileNameEdit")->setText("b.pdf");
            QTest::keyClick(files, Qt::Key_Return);
        });
        button(dialog, "Parcourir…")->click();
        EXPECT_EQ(dialog.settings().file, row.directory + "/b.pdf");
    }
}

TEST_F(PrintSetup, onlyAFileThatCanBeWrittenIsConfirmed) {
    test_support::writeFile(path("la.pdf"), "contenu");
    const struct {
        QString file;
        std::deque<Answer> answers;
        const char* said; ///< what the message has
        bool isConfirmed;
    } rows[] = {
        {"", {}, "Donnez un nom", false},
        {directory.path(), {}, "dossier", false},
        {path("nulle/part.pdf"), {}, "n’existe pas", false},
        {path("la.pdf"), {Answer::No}, "Le remplacer", false},
        {path("la.pdf"), {Answer::Yes}, "Le remplacer", true},
        {path("neuf.pdf"), {}, nullptr, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(qPrintable(row.file));
        messageBoxes.messages.clear();
        messageBoxes.answers = row.answers;
        look::PrintSetupDialog dialog({QPageLayout(), row.file}, messageBoxes, nullptr);
        dialog.show();
        dialog.accept();
        EXPECT_EQ(dialog.result() == QDialog::Accepted, row.isConfirmed);
        EXPECT_EQ(messageBoxes.messages.size(), row.said ? 1u : 0u);
        const QString said =
            messageBoxes.messages.empty() ? QString() : messageBoxes.messages[0].text;
        EXPECT_TRUE(said.contains(QString::fromUtf8(row.said))) << qPrintable(said);
    }
    EXPECT_EQ(test_support::readFile(path("la.pdf")), "contenu") << "only printing replaces it";
}

TEST_F(PrintSetup, whatWasChosenHoldsForTheRun) {
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        GTEST_SKIP() << "this computer has a printer";
    page::FontBook fonts;
    output::QtPrinter printer(fonts);
    look::QtPrinterSetup setup(printer, messageBoxes);
    const auto answer = [&](const std::function<void(QWidget&)>& person) {
        QTimer::singleShot(0, [&person] { person(*QApplication::activeModalWidget()); });
        return setup.ask();
    };
    EXPECT_EQ(answer([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }),
              Outcome::Cancelled);
    EXPECT_EQ(answer([](QWidget& dialog) { dialog.close(); }), Outcome::Cancelled);
    EXPECT_EQ(answer([&](QWidget& dialog) {
                  dialog.findChild<QLineEdit*>("file")->setText(path("a.pdf"));
                  dialog.findChild<QComboBox*>()->setCurrentText("A5");
                  QTest::keyClick(&dialog, Qt::Key_Return);
              }),
              Outcome::Confirmed);
    EXPECT_EQ(printer.device().outputFileName(), path("a.pdf"));
    EXPECT_NEAR(printer.paper().width, 148 / 25.4 * 1440, 15);
    EXPECT_NEAR(printer.paper().left, 10 / 25.4 * 1440, 15);
    EXPECT_EQ(answer([&](QWidget& dialog) {
                  EXPECT_EQ(dialog.findChild<QLineEdit*>("file")->text(), path("a.pdf"));
                  EXPECT_EQ(dialog.findChild<QComboBox*>()->currentText(), "A5");
                  button(dialog, "Annuler")->click();
              }),
              Outcome::Cancelled);
    EXPECT_EQ(answer([](QWidget&) { QCoreApplication::exit(); }), Outcome::Gone);
}

} // namespace
