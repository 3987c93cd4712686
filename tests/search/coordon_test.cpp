#include "coursetool/tables.h"
#include "jet/database_file.h"
#include "look/palette.h"
#include "search/coordon.h"
#include "support/files.h"
#include "support/plain_words.h"
#include "text/utf8.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>

#include <gtest/gtest.h>

namespace search {
namespace {

struct Page {
    const char16_t* title;
    const char16_t* source;
    bool inSearch = true;
};

constexpr int kFirstNumber = 101;

/// The window over a real course, whose pages have the numbers 101, 102 and so on.
class CoordonWindow : public testing::Test {
protected:
    void write(const std::vector<Page>& pages) {
        auto file = jet::createDatabase(database().toStdString());
        ASSERT_TRUE(file);
        const auto& rule = coursetool::coursTable();
        const auto columns = coursetool::columnsOf(rule);
        auto table = file->addTable(text::toUtf16(rule.name), columns);
        ASSERT_TRUE(table);
        for (std::size_t i = 0; i < pages.size(); ++i) {
            std::vector<jet::Value> row(columns.size());
            const auto set = [&](std::u16string_view name, jet::Value value) {
                for (std::size_t c = 0; c < columns.size(); ++c)
                    if (columns[c].name == name)
                        row[c] = std::move(value);
            };
            set(u"Numeropage", jet::Value(static_cast<std::int32_t>(kFirstNumber + i)));
            set(u"titre", jet::Value(pages[i].title));
            set(u"moteur", jet::Value(pages[i].inSearch));
            set(u"fpc", jet::Value(pages[i].source));
            ASSERT_TRUE(table->append(row));
        }
        ASSERT_TRUE(file->finish());
    }

    QString database() const { return folder_.filePath("ZEKX.MDB"); }

    void open() {
        window.reset();
        shared.InstallDir = folder_.path() + u'/';
        window = std::make_unique<Coordon>(shared, last, fonts, nullptr);
        window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    template <class Control>
    Control& control(const char* name) {
        return *window->findChild<Control*>(QString::fromLatin1(name));
    }
    QListView& list() { return control<QListView>("List2"); }

    void press(const char* button) {
        QTest::mouseClick(&control<QPushButton>(button), Qt::LeftButton);
    }

    void search(const QString& words) {
        auto& field = control<QLineEdit>("Text1");
        field.setFocus();
        field.setText(words);
        QTest::keyClick(&field, Qt::Key_Return);
    }

    /// Titles and numbers in the list; "-" when it is hidden.
    std::string lines() {
        if (list().isHidden())
            return "-";
        QStringList all;
        for (int i = 0; i < list().model()->rowCount(); ++i) {
            const QModelIndex line = list().model()->index(i, 0);
            all << QStringLiteral("%1 %2").arg(line.data().toString(),
                                               line.data(Qt::UserRole).toString());
        }
        return all.join(u'|').toStdString();
    }

    static bool has(const QImage& picture, QRgb colour) {
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if (picture.pixel(x, y) == colour)
                    return true;
        return false;
    }
    /// The colour a button is filled with.
    QRgb ground(const char* button) {
        return control<QPushButton>(button).grab().toImage().pixel(6, 5);
    }

    bool closed() const { return !window->isVisible(); }

    shell::SharedState shared;
    LastSearch last;
    page::FontBook fonts;
    std::unique_ptr<Coordon> window;

private:
    QTemporaryDir folder_;
};

const std::vector<Page> kCourse = {{u"Première", u"lumière"},
                                   {u"La lumière", u"##SI14\r\nLa LUMIÈRE et l’indice\r\n"},
                                   {u"Cachée", u"lumière", false},
                                   {u"L’indice", u"Un indice sans lumiere\r\n"}};

TEST_F(CoordonWindow, listsWhatItsBoxesAskFor) {
    write(kCourse);
    open();
    EXPECT_EQ(window->height(), 132);
    EXPECT_EQ(lines(), "-");
    EXPECT_EQ(ground("Command2"), look::kBlue);
    EXPECT_EQ(control<QLineEdit>("Text1").accessibleName(),
              QStringLiteral("Saisir le(s) mot(s) à rechercher :"));
    search(QStringLiteral("l"));
    EXPECT_EQ(lines(), "-");
    EXPECT_TRUE(control<QLabel>("Label2").isHidden());

    // Capital letters aside; neither the first page nor one out of the search is ever found.
    search(QStringLiteral(" Lumière ; INDICE"));
    EXPECT_EQ(lines(), "La lumière 102|L’indice 104");
    EXPECT_EQ(window->height(), 280);
    // Blue is what is likely to be wanted next; the arrow key leads there from the words.
    EXPECT_EQ(ground("Command2"), look::kPaper);
    EXPECT_EQ(ground("Command3"), look::kBlue);
    control<QLineEdit>("Text1").setFocus();
    QTest::keyClick(&control<QLineEdit>("Text1"), Qt::Key_Down);
    EXPECT_TRUE(list().hasFocus());
    control<QCheckBox>("Checkmots").click();
    search(QStringLiteral("lumière indice"));
    EXPECT_EQ(lines(), "La lumière 102");
    EXPECT_FALSE(control<QCheckBox>("accents").isChecked());
    control<QCheckBox>("accents").click();
    search(QStringLiteral("lumiere l'indicé")); // with the apostrophe of the keyboard
    EXPECT_EQ(lines(), "La lumière 102");
    control<QCheckBox>("Checkmots").click();
    search(QStringLiteral("lumiere l'indicé"));
    EXPECT_EQ(lines(), "La lumière 102|L’indice 104");

    control<QLineEdit>("Text1").setText(QStringLiteral("thermodynamique"));
    QTest::keyClick(&control<QPushButton>("Command2"), Qt::Key_Return);
    EXPECT_EQ(lines(), "-");
    EXPECT_TRUE(control<QLabel>("Label2").isVisible());
    EXPECT_EQ(window->height(), 132);
    search(QStringLiteral("indice"));
    EXPECT_TRUE(control<QLabel>("Label2").isHidden());
    EXPECT_TRUE(control<QProgressBar>("Pbar1").isHidden());
}

TEST_F(CoordonWindow, showsTheWordsInAnExtractOfTheChosenPage) {
    write({kCourse[0],
           {u"Image", u"##IMAprisme.svg\r\nUn verre & de l’eau\r\n"},
           {u"Le prisme", u"##SI12\r\nUn <i>Prisme</i> de verre.\r\n"},
           {u"Lien", u"##LIERTvoir le prisme#PAG003\r\n"},
           {u"Cible", u"Rien\r\n##LIERTsuite#prisme\r\n"}});
    open();
    search(QStringLiteral("prisme"));
    // Those on which nothing of it is read come last.
    EXPECT_EQ(lines(), "Le prisme 103|Lien 104|Image 102|Cible 105");
    EXPECT_EQ(control<QLabel>("count").text(),
              QStringLiteral("4 pages trouvées, dont 2 où rien ne se lit."));
    EXPECT_TRUE(control<QLabel>("hint").isHidden());
    auto& extract = control<QTextBrowser>("extract");
    EXPECT_EQ(extract.toPlainText(), QStringLiteral("Un <i>Prisme</i> de verre."));
    EXPECT_TRUE(extract.toHtml().contains(QStringLiteral("background-color:#fff0a0;\">Prisme")));
    EXPECT_TRUE(has(extract.grab().toImage(), look::kMarkTint));
    const auto frame = [&] { // half way along its upper edge, inside
        const QPoint at(extract.geometry().center().x(), extract.y() - 1);
        return extract.parentWidget()->grab(QRect(at, QSize(1, 1))).toImage().pixel(0, 0);
    };
    EXPECT_EQ(frame(), look::kPaper);
    extract.setFocus();
    EXPECT_EQ(frame(), look::kBlue);
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_End);
    QTest::keyClick(&list(), Qt::Key_Up);
    EXPECT_TRUE(extract.toPlainText().startsWith(QStringLiteral("Rien de cela ne se lit")));
    EXPECT_TRUE(extract.toPlainText().endsWith(QStringLiteral("Un verre & de l’eau")));
    search(QStringLiteral("absent"));
    EXPECT_EQ(extract.toPlainText(), u"");
}

TEST_F(CoordonWindow, helpsWhoeverFindsNothing) {
    write(kCourse);
    open();
    const auto hint = [this] {
        return control<QLabel>("hint").isHidden() ? QString() : control<QLabel>("hint").text();
    };
    search(QStringLiteral("é"));
    EXPECT_EQ(hint(), QStringLiteral("Saisissez au moins deux caractères."));
    search(QStringLiteral("refraction"));
    EXPECT_EQ(hint(), QStringLiteral("Essayez «\u00A0Ignorer les accents\u00A0»."));
    control<QCheckBox>("accents").click();
    search(QStringLiteral("refraction"));
    EXPECT_EQ(hint(), u"");
    search(QStringLiteral("lumiere"));
    EXPECT_EQ(hint(), u"");
    EXPECT_EQ(control<QLabel>("count").text(), QStringLiteral("2 pages trouvées."));
    search(QStringLiteral(" ; "));
    EXPECT_EQ(lines(), "La lumière 102|L’indice 104"); // what was found stays
}

TEST_F(CoordonWindow, offersWhatWasSearchedLast) {
    write(kCourse);
    open();
    EXPECT_TRUE(control<QPushButton>("again").isHidden());
    control<QCheckBox>("accents").click();
    search(QStringLiteral("lumiere & x"));
    open(); // empty, as ever
    EXPECT_EQ(control<QLineEdit>("Text1").text(), u"");
    EXPECT_FALSE(control<QCheckBox>("accents").isChecked());
    EXPECT_EQ(control<QPushButton>("again").text(), u"Reprendre\u00A0: lumiere && x");
    press("again");
    EXPECT_EQ(lines(), "La lumière 102|L’indice 104");
    EXPECT_TRUE(control<QPushButton>("again").isHidden());
}

TEST_F(CoordonWindow, titlesStandInTheListToTheLetter) {
    const std::u16string hostile = test_support::kHostileWords.toStdU16String();
    write({kCourse[0], {u"&x", u"indice"}, {u"x", u"indice"}, {hostile.c_str(), u"indice"}});
    open();
    search(QStringLiteral("indice"));
    EXPECT_EQ(lines(), "&x 102|x 103|" + test_support::kHostileWords.toStdString() + " 104");
    EXPECT_EQ(test_support::expectPlainWords(*window), 0); // the list paints its lines itself
    const auto inkedColumns = [this](int line) {
        const QImage shown =
            list().viewport()->grab(list().visualRect(list().model()->index(line, 0))).toImage();
        const QRgb ground = shown.pixel(shown.width() - 1, shown.height() / 2);
        int columns = 0;
        for (int x = 0; x < shown.width(); ++x)
            for (int y = 0; y < shown.height(); ++y)
                if (shown.pixel(x, y) != ground) {
                    ++columns;
                    break;
                }
        return columns;
    };
    // Of the line that is chosen the words are white.
    const QImage chosen =
        list().viewport()->grab(list().visualRect(list().currentIndex())).toImage();
    EXPECT_EQ(chosen.pixel(chosen.width() - 1, 2), look::kBlue);
    EXPECT_TRUE(has(chosen, look::kPaper));
    EXPECT_GT(inkedColumns(0), inkedColumns(1) + 5) << "the sign before the letter";
    EXPECT_GT(inkedColumns(2), 150) << "the signs of a markup";
}

TEST_F(CoordonWindow, leavesThePageThatWasChosen) {
    write(kCourse);
    const std::vector<std::function<void()>> waysOfChoosing = {
        [this] { press("Command3"); },
        [this] { QTest::keyClick(&control<QPushButton>("Command3"), Qt::Key_Return); },
        [this] { QTest::keyClick(&list(), Qt::Key_Return); },
        [this] {
            const QPoint line = list().visualRect(list().currentIndex()).center();
            QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, line);
            QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, line);
        }};
    for (const auto& choose : waysOfChoosing) {
        open();
        EXPECT_EQ(shared.SearchChosenPage, 0); // what an earlier search chose is forgotten
        search(QStringLiteral("indice"));
        EXPECT_TRUE(list().hasFocus());
        QKeyEvent heldDown(QEvent::KeyPress, Qt::Key_Return, {}, {}, true); // since the search
        QCoreApplication::sendEvent(&list(), &heldDown);
        QTest::keyClick(&list(), Qt::Key_Down);
        choose();
        EXPECT_TRUE(closed());
        EXPECT_EQ(shared.SearchChosenPage, 104);
    }
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Space, Qt::Key_Return}) {
        open();
        search(QStringLiteral("indice"));
        control<QPushButton>("Command1").setFocus();
        QTest::keyClick(&control<QPushButton>("Command1"), key);
        EXPECT_TRUE(closed());
        EXPECT_EQ(shared.SearchChosenPage, 0);
    }
}

TEST_F(CoordonWindow, searchesShortTablesAndCoursesThatAreNotThere) {
    open();
    search(QStringLiteral("lumière"));
    auto& notice = control<QLabel>("Label2");
    EXPECT_TRUE(notice.isVisible());
    const QString unread =
        QStringLiteral("Aucune page trouvée\u00A0: ce cours ne peut pas être lu.");
    EXPECT_EQ(notice.text(), unread);
    write(kCourse); // it comes back under the window
    search(QStringLiteral("lumière"));
    EXPECT_EQ(lines(), "La lumière 102");
    search(QStringLiteral("absent"));
    EXPECT_EQ(notice.text(), QStringLiteral("Aucune page trouvée."));
    for (std::size_t records = 0; records <= 2; ++records) {
        write({kCourse.begin(), kCourse.begin() + static_cast<std::ptrdiff_t>(records)});
        open();
        search(QStringLiteral("lumière"));
        EXPECT_EQ(lines(), records == 2 ? "La lumière 102" : "-") << records;
    }
}

TEST_F(CoordonWindow, saysWhenAPartOfTheCourseCannotBeRead) {
    const std::u16string longText = u"indice " + std::u16string(3'000, u'x');
    write({kCourse[0], {u"Longue", longText.c_str()}, {u"L’indice", u"Un indice"}});
    QByteArray file = test_support::readFile(database());
    // So long a text is stored with two bytes a letter.
    const qsizetype at = file.indexOf(QByteArray("x\0", 2).repeated(100));
    ASSERT_GT(at, 0);
    constexpr int kPage = 4096;
    file[at / kPage * kPage] = '\x7F'; // a page of no kind
    test_support::writeFile(database(), file);
    open();
    search(QStringLiteral("indice"));
    EXPECT_EQ(lines(), "L’indice 103");
    EXPECT_EQ(control<QLabel>("count").text(),
              QStringLiteral("1 page trouvée. Une partie du cours ne peut pas être lue."));
    EXPECT_TRUE(control<QLabel>("hint").isHidden());
}

TEST_F(CoordonWindow, staysAliveDuringALongSearch) {
    write(std::vector<Page>(5'000, kCourse[1]));
    open();
    window->setTurn(0);
    search(QStringLiteral("indice"));
    auto& bar = control<QProgressBar>("Pbar1");
    EXPECT_TRUE(bar.isVisible());
    EXPECT_GT(bar.value(), 1);
    EXPECT_EQ(bar.maximum(), 4'999);
    EXPECT_TRUE(has(bar.grab().toImage(), look::kBlue));
    EXPECT_FALSE(control<QPushButton>("Command3").isEnabled());
    // Neither Enter nor the button starts it anew meanwhile.
    control<QCheckBox>("Checkmots").click();
    search(QStringLiteral("nowhere"));
    press("Command2");
    ASSERT_TRUE(test_support::eventually([&] { return list().isVisible(); }));
    EXPECT_EQ(list().model()->rowCount(), 4'999);
    EXPECT_EQ(window->query()->words, queryWords(u"indice"));

    search(QStringLiteral("nowhere"));
    EXPECT_TRUE(bar.isVisible());
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_TRUE(closed());
    QTest::qWait(50);
    EXPECT_EQ(shared.SearchChosenPage, 0);
}

} // namespace
} // namespace search
