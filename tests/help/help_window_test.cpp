#include "help/help_browser.h"
#include "help/help_list.h"
#include "help/help_window.h"
#include "help/page_document.h"
#include "look/print_setup.h"
#include "output/paper/qt_printer.h"
#include "output/pdf/pdf_printer.h"
#include "printing/printed_pdf.h"
#include "support/fake_message_boxes.h"
#include "support/fake_print_preview.h"
#include "support/printing.h"

#include <QLabel>
#include <QLineEdit>
#include <QPrinter>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>

namespace help {
namespace {

class IntoFile : public platform::PrinterSetup {
public:
    IntoFile(output::QtPrinter& printer, QString file)
        : printer_(printer), file_(std::move(file)) {}
    Outcome ask() override {
        printer_.device().setOutputFormat(QPrinter::PdfFormat);
        printer_.device().setOutputFileName(file_);
        return answer;
    }
    Outcome answer = Outcome::Confirmed;

private:
    output::QtPrinter& printer_;
    QString file_;
};

std::unique_ptr<platform::Printer> newPdf(const QString& path, const page::FontBook& fonts,
                                          const platform::Paper& paper) {
    return std::make_unique<output::PdfPrinter>(path, fonts, paper);
}

class Window : public testing::Test {
protected:
    Window() {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    QString shown() const { return book.pages()[browser->page()].file; }
    void hit(int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
        QCoreApplication::processEvents();
    }
    void type(const char* words) {
        hit(Qt::Key_F, Qt::ControlModifier);
        field->clear();
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(words));
    }

    HelpBook book;
    QTemporaryDir directory;
    page::FontBook fonts;
    output::QtPrinter printer{fonts, &newPdf};
    IntoFile setup{printer, directory.filePath("page.pdf")};
    test_support::FakeMessageBoxes messageBoxes;
    test_support::FakePrintPreview preview;
    test_support::FakePdfOpener opener;
    HelpWindow window{book, {setup, preview, printer, fonts, messageBoxes, opener}};
    HelpBrowser* browser = static_cast<HelpBrowser*>(window.findChild<QTextBrowser*>());
    HelpList* list = static_cast<HelpList*>(window.findChild<QListWidget*>());
    QLineEdit* field = window.findChild<QLineEdit*>();
};

TEST_F(Window, searchesAndMarksByKeyboard) {
    type("GLOSSAIRExyz");
    EXPECT_EQ(list->item(0)->text(), "Aucune page trouvée");
    hit(Qt::Key_Return);
    EXPECT_EQ(shown(), "bienvenue.html");
    type("video");
    hit(Qt::Key_Return);
    EXPECT_EQ(shown(), "videos.html");
    const int count = browser->hitCount();
    ASSERT_GT(count, 2);
    EXPECT_EQ(browser->currentHit(), 0);
    EXPECT_EQ(window.findChild<QLabel*>()->text(),
              QStringLiteral("Mot marqué 1 sur %1").arg(count));
    hit(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(browser->currentHit(), count - 1);
    EXPECT_TRUE(browser->viewport()->rect().intersects(browser->cursorRect()));
    EXPECT_TRUE(browser->textCursor().block().text().contains("vidéo", Qt::CaseInsensitive));

    hit(Qt::Key_F, Qt::ControlModifier);
    hit(Qt::Key_Down);
    ASSERT_TRUE(list->hasFocus());
    hit(Qt::Key_Down);
    hit(Qt::Key_Return);
    EXPECT_NE(shown(), "videos.html");
    list->setFocus();
    hit(Qt::Key_Escape); // as everywhere but in the words
    EXPECT_FALSE(window.isVisible());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_GT(browser->hitCount(), 0);
    hit(Qt::Key_F, Qt::ControlModifier);
    hit(Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(browser->hitCount(), 0);
    hit(Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(Window, linksLeadWithinTheManualOnly) {
    const auto isEnabled = [this](const char* caption) {
        for (const auto* button : window.findChildren<QPushButton*>())
            if (button->text() == QString::fromUtf8(caption))
                return button->isEnabled();
        ADD_FAILURE() << caption;
        return false;
    };
    EXPECT_FALSE(isEnabled("&Précédent"));
    Q_EMIT browser->anchorClicked(QUrl("aide:/imprimer.html"));
    EXPECT_EQ(shown(), "imprimer.html");
    EXPECT_TRUE(isEnabled("&Précédent"));
    EXPECT_FALSE(isEnabled("S&uivant"));
    for (const char* elsewhere : {"https://example.org/", "file:///etc/passwd", "aide:/../a.html"})
        Q_EMIT browser->anchorClicked(QUrl(elsewhere));
    EXPECT_EQ(shown(), "imprimer.html");
    EXPECT_TRUE(browser->loadResource(QTextDocument::ImageResource, QUrl("/etc/x.png"))
                    .value<QPixmap>()
                    .isNull());
    hit(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(shown(), "bienvenue.html");
    hit(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(shown(), "imprimer.html");
    hit(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(shown(), "bienvenue.html");
}

TEST_F(Window, enlargesTheTextAroundTheLineAtTheTop) {
    browser->showPage("clavier.html");
    browser->verticalScrollBar()->setValue(600);
    const int top = browser->cursorForPosition({40, 0}).position();
    const double height = browser->document()->size().height();
    hit(Qt::Key_Plus, Qt::ControlModifier);
    hit(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_GT(browser->document()->size().height(), height);
    QTextCursor there(browser->document());
    there.setPosition(top);
    EXPECT_LT(std::abs(browser->cursorRect(there).top()), 2);
    const double enlarged = browser->document()->size().height();
    hit(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_LT(browser->document()->size().height(), enlarged);
    hit(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(browser->document()->size().height(), height);
}

TEST_F(Window, printsThePageShown) {
    browser->showPage("clavier.html");
    setup.answer = platform::PrinterSetup::Outcome::Cancelled;
    hit(Qt::Key_P, Qt::ControlModifier);
    EXPECT_FALSE(QFile::exists(directory.filePath("page.pdf")));
    setup.answer = platform::PrinterSetup::Outcome::Confirmed;
    hit(Qt::Key_P, Qt::ControlModifier);
    const auto sheets = test_support::PrintedPdf(directory.filePath("page.pdf")).sheets();
    ASSERT_GT(sheets.size(), 1);
    EXPECT_EQ(sheets[0].first(), "Toutes les touches");
    EXPECT_EQ(QString(sheets[0].last()).remove(u' '),
              QStringLiteral("Aided’Orvalente–Touteslestouches1/%1").arg(sheets.size()));
    const QString end = sheets.last().join(u'\n');
    EXPECT_TRUE(end.contains("sinon ferme l’aide")) << qPrintable(end);
    EXPECT_EQ(preview.choices.size(), 2);
    auto* told = window.findChild<QLabel*>("outcome");
    EXPECT_TRUE(told->isVisible() && told->text().contains("page.pdf")) << qPrintable(told->text());
    window.findChild<QPushButton*>("outcomeAction")->click();
    EXPECT_EQ(opener.files, QStringList{directory.filePath("page.pdf")});

    printer.device().setOutputFileName(directory.path());
    IntoFile nowhere(printer, directory.filePath("nulle/part.pdf"));
    HelpWindow other(book, {nowhere, preview, printer, fonts, messageBoxes, opener});
    other.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    hit(Qt::Key_P, Qt::ControlModifier);
    ASSERT_EQ(messageBoxes.messages.size(), 1U);
    EXPECT_TRUE(messageBoxes.messages[0].text.contains("n’a pas pu être imprimée"));
}

TEST_F(Window, theWholeHelpIsOneFileWithItsContentsAndLinks) {
    preview.answer = 1;
    hit(Qt::Key_P, Qt::ControlModifier);
    using test_support::PrintedPdf;
    const QString path = directory.filePath("page.pdf");
    const QString outline = PrintedPdf::run("pdftohtml", {"-xml", "-stdout", "-i", path});
    EXPECT_EQ(outline.count("<item"), book.pages().size()) << "a line for each page of the help";
    const QString json = PrintedPdf::run("qpdf", {"--json=1", "--json-key=objects", path});
    EXPECT_GT(json.count("\"/Subtype\": \"/Link\""), 20);
    // A heading goes with what follows it.
    QStringList headings;
    for (const HelpPage& page : book.pages()) {
        PageDocument document(book, page);
        for (auto block = document.begin(); block.isValid(); block = block.next())
            if (block.blockFormat().headingLevel() > 0)
                headings.append(block.text().simplified());
    }
    for (const QStringList& sheet : PrintedPdf(path).sheets())
        EXPECT_FALSE(headings.contains(sheet.value(sheet.size() - 2))) << qPrintable(sheet.last());
}

TEST_F(Window, aJobOfTheCourseIsNotCut) {
    look::QtPrinterSetup asking(printer, messageBoxes);
    HelpWindow other(book, {asking, preview, printer, fonts, messageBoxes, opener});
    other.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
    setup.ask();
    page::Sheet sheet;
    sheet.width = 11906;
    sheet.height = 16838;
    ASSERT_TRUE(printer.begin({"Cours"}));
    EXPECT_TRUE(printer.print(sheet));
    hit(Qt::Key_P, Qt::ControlModifier);
    ASSERT_EQ(messageBoxes.messages.size(), 1U);
    EXPECT_TRUE(messageBoxes.messages[0].text.startsWith("Une impression est en cours"));
    EXPECT_TRUE(printer.print(sheet));
    EXPECT_TRUE(printer.end());
    EXPECT_EQ(test_support::PrintedPdf(directory.filePath("page.pdf")).sheets().size(), 2);
}

} // namespace
} // namespace help
