#include "platform_cairo/pdf_bench.h"

#include <QRegularExpression>
#include <QSet>

namespace {

using page::SurfaceId;

class PdfFile : public test_support::PdfBench {
protected:
    void printIn(const char16_t* face, double y, const QString& words) {
        surface.setFace(QString::fromUtf16(face));
        print(150, y, words);
    }

    /// The page of a link's tag, when it is one of the two that the file has.
    static std::optional<int> pageOfTag(const QString& tag) {
        return tag == u"PAG012" ? 12 : tag == u"PAG013" ? 13 : std::optional<int>();
    }

    QString outlineOf(const QString& name) const {
        return QString::fromUtf8(
            run(QStringLiteral("qpdf"),
                {QStringLiteral("--json"), QStringLiteral("--json-key=outlines"), path(name)}));
    }
};

TEST_F(PdfFile, textIsUnicodeInEveryFace) {
    printIn(u"Arial", 150, QStringLiteral("« cœur » é → Δ∆ µμ ¶"));
    printIn(u"Symbol", 450, QString::fromLatin1("lWab\xB7\xAE"));
    printIn(u"Symbol", 750, QStringLiteral("λx\uF06C"));
    printIn(u"Wingdings", 1050, QString::fromLatin1("l\xFC"));
    printIn(u"Comic Sans MS", 1350, QStringLiteral("aλb"));
    printIn(u"times NEW roman", 1650, QStringLiteral("insé\u00ADcable"));
    write({sheet()});
    EXPECT_EQ(text().trimmed().split(u'\n', Qt::SkipEmptyParts),
              (QStringList{QStringLiteral("« cœur » é → Δ∆ µμ ¶"), QStringLiteral("λΩαβ•→"),
                           QStringLiteral("λξλ"), QStringLiteral("●✔"), QStringLiteral("aλb"),
                           QStringLiteral("insé\u00ADcable")}));
}

/// What a glyph meant first, the document has for it all along.
TEST_F(PdfFile, oddLettersLeaveTheLaterOnesWhatTheyAre) {
    double y = 0;
    for (const char16_t* words :
         {u"une\ttable \u0001ronde", u"deux mots", u"insé\u00ADcable", u"peut-être oui"}) {
        for (const char16_t* face : {u"Arial", u"Times new roman"})
            printIn(face, y += 300, QString::fromUtf16(words));
    }
    write({sheet()});
    QStringList lines;
    for (const char16_t* words :
         {u"une table ronde", u"deux mots", u"insé\u00ADcable", u"peut-être oui"})
        lines += QStringList(2, QString::fromUtf16(words));
    EXPECT_EQ(text().trimmed().split(u'\n', Qt::SkipEmptyParts), lines);
}

TEST_F(PdfFile, everyLetterStandsWhereTheFontBookPutsIt) {
    struct Letter {
        double x, foot;
        char32_t shown;
    };
    std::vector<Letter> expected;
    const struct {
        const char16_t* face;
        double points;
        bool bold, italic;
        const char16_t* words;
    } rows[] = {
        {u"Arial", 8, false, false, u"Un rayon qui passe obliquement de l’air dans l’eau dévie."},
        {u"Arial", 12, false, false, u"Incompréhensibilité wwwwwwwwwwwwwwwwwwwwwwwwwwwwwww"},
        {u"Arial", 24, true, false, u"Réfraction de la lumière"},
        {u"Times new roman", 13, false, true, u"Un rayon qui passe obliquement de l’air"},
        {u"Comic Sans MS", 12, true, true, u"Un rayon qui passe obliquement"},
        {u"Symbol", 12, true, true, u"abcdefghijklmnopqrstuvwxyz"},
        {u"Wingdings", 12, true, false, u"lnlnlnlnlnlnlnlnlnlnlnln"},
    };
    double y = 150;
    for (const auto& row : rows) {
        surface.setFace(QString::fromUtf16(row.face));
        surface.setFontPoints(row.points);
        surface.setBold(row.bold);
        surface.setItalic(row.italic);
        // In runs, as a change of ink makes them; each begins where the one before ended.
        surface.setPenX(150);
        surface.setPenY(y);
        for (const QString& word : QString::fromUtf16(row.words).split(u' ')) {
            const QString run = word + u' ';
            for (const auto& glyph : fonts.glyphs(surface.font(), run))
                if (glyph.character != U' ')
                    expected.push_back({surface.penX() + glyph.offset,
                                        y + fonts.ascent(surface.font()), glyph.character});
            surface.print(run);
        }
        y += 600;
    }
    write({sheet()});
    PdfBench::run(QStringLiteral("mutool"),
                  {QStringLiteral("draw"), QStringLiteral("-F"), QStringLiteral("stext"),
                   QStringLiteral("-o"), path(QStringLiteral("t.xml")), path()});
    const QString said = QString::fromUtf8(test_support::readFile(path(QStringLiteral("t.xml"))));
    static const QRegularExpression kLetter(
        QStringLiteral("<char quad=[^>]* x=\"([-0-9.]+)\" y=\"([-0-9.]+)\"[^>]* c=\"([^ \"]+)\""));
    std::size_t seen = 0;
    for (auto found = kLetter.globalMatch(said); found.hasNext(); ++seen) {
        const auto letter = found.next();
        const double x = letter.captured(1).toDouble() * 20 - kLeft;
        const double foot = letter.captured(2).toDouble() * 20 - kTop;
        const QString code = letter.captured(3);
        const char32_t shown = code.startsWith(u"&#x") ? code.mid(3).chopped(1).toUInt(nullptr, 16)
                                                       : code.toUcs4().first();
        // Programs list letters in an order of their own.
        const bool there = std::any_of(expected.begin(), expected.end(), [&](const Letter& one) {
            return one.shown == shown && std::abs(one.x - x) < 1.5 &&
                   std::abs(one.foot - foot) < 1.5;
        });
        EXPECT_TRUE(there) << qPrintable(letter.captured(0));
    }
    EXPECT_EQ(seen, expected.size());
    // Readers pass over a letter that stands twice at its place.
    const QString drawn = QString::fromUtf8(
        PdfBench::run(QStringLiteral("mutool"), {QStringLiteral("trace"), path()}));
    static const QRegularExpression kGlyph(QStringLiteral("<g unicode=\"[^ \"]"));
    auto glyphs = kGlyph.globalMatch(drawn);
    std::size_t shown = 0;
    for (; glyphs.hasNext(); glyphs.next())
        ++shown;
    EXPECT_EQ(shown, expected.size());
}

TEST_F(PdfFile, linksOutlineLabelsAndMetadata) {
    page::LinkOperation link;
    link.x = 1500;
    link.y = 300;
    link.width = 900;
    link.height = 255;
    link.caption = QStringLiteral("suite");
    link.tag = QStringLiteral("PAG013");
    recording.add(link);
    link.index = 1;
    link.tag = QStringLiteral("PAG099");
    link.y = 900;
    recording.add(link);
    const QString title = QStringLiteral("Réfraction λ");
    write({sheet(12, title), sheet(13), sheet(12, QStringLiteral("encore"))},
          {QStringLiteral("Cours d’optique λ"), QStringLiteral("Élise"), pageOfTag});

    EXPECT_TRUE(run(QStringLiteral("qpdf"), {QStringLiteral("--check"), path()})
                    .contains("No syntax or stream"));
    const QString about = QString::fromUtf8(run(QStringLiteral("pdfinfo"), {path()}));
    for (const char16_t* line : {u"Title:           Cours d’optique λ", u"Author:          Élise",
                                 u"Tagged:          yes", u"Page size:       555 x 375 pts"})
        EXPECT_TRUE(about.contains(QString::fromUtf16(line))) << qPrintable(about);
    const QString targets =
        QString::fromUtf8(run(QStringLiteral("pdfinfo"), {QStringLiteral("-dests"), path()}))
            .simplified();
    EXPECT_TRUE(
        targets.endsWith(u"1 [ XYZ 0 375 null ] \"page12\" 2 [ XYZ 0 375 null ] \"page13\""))
        << qPrintable(targets);

    const QString json =
        QString::fromUtf8(run(QStringLiteral("qpdf"), {QStringLiteral("--json=1"), path()}))
            .simplified();
    // Two live links to page 13: one on each sheet 12; the tag 99 leads nowhere.
    EXPECT_EQ(json.count(u"\"/Subtype\": \"/Link\""), 3);
    EXPECT_EQ(json.count(u"/Rect\": [ 150, 302, 195, 315 ]"), 3) << qPrintable(json);
    EXPECT_TRUE(json.contains(u"\"title\": \"Réfraction λ\""));
    EXPECT_TRUE(json.contains(u"\"title\": \"Page 13\""));
    for (const char16_t* label : {u"\"/St\": 12", u"\"/St\": 13"})
        EXPECT_TRUE(json.contains(QString::fromUtf16(label)));
}

TEST_F(PdfFile, theSameSheetsGiveTheSameBytes) {
    printIn(u"Arial", 150, QStringLiteral("Un texte"));
    surface.fill(0, 0, 3000, 600, 0xffdce6ff, page::FillMode::Mask);
    const output::PdfDocument document{QStringLiteral("é"), {}, pageOfTag};
    write({sheet(12), sheet(13)}, document);
    write({sheet(12), sheet(13)}, document, QStringLiteral("autre.pdf"));
    const QByteArray bytes = test_support::readFile(path());
    EXPECT_EQ(bytes, test_support::readFile(path(QStringLiteral("autre.pdf"))));
    EXPECT_FALSE(bytes.contains("/CreationDate"));
}

TEST_F(PdfFile, facesAreSubsetsEmbeddedOnce) {
    printIn(u"Arial", 150, QStringLiteral("Un texte"));
    printIn(u"Symbol", 450, QStringLiteral("l"));
    surface.setItalic(true);
    printIn(u"Symbol", 750, QStringLiteral("l"));
    std::vector<page::Sheet> sheets(20, sheet());
    write(sheets);
    const QStringList faces = listed(QStringLiteral("pdffonts"));
    ASSERT_EQ(faces.size(), 3);
    for (const QString& face : faces)
        EXPECT_TRUE(face.contains(QRegularExpression(QStringLiteral("yes +yes +yes"))))
            << qPrintable(face);
    EXPECT_LT(test_support::readFile(path()).size(), 40'000);
}

TEST_F(PdfFile, aSheetTallerThanPdfAllowsIsScaledAsAWhole) {
    printIn(u"Arial", 150, QStringLiteral("haut"));
    printIn(u"Arial", 599'000, QStringLiteral("bas"));
    page::Sheet tall = sheet(12);
    tall.height = kTop + 600'000;
    tall.surfaces[0].height = 600'000;
    tall.links.push_back(
        {SurfaceId::PictureTexte, 0, 599'000, 1500, 300, QStringLiteral("PAG012"), {}});
    write({tall, sheet()}, {QString(), QString(), pageOfTag});
    const QString sizes = QString::fromUtf8(
        run(QStringLiteral("pdfinfo"), {QStringLiteral("-l"), QStringLiteral("2"), path()}));
    const double scale = 14400 * 20 / tall.height;
    EXPECT_TRUE(sizes.contains(QRegularExpression(
        QStringLiteral("Page +1 size: +%1[0-9.]* x 14400 pts").arg(int(555 * scale)))))
        << qPrintable(sizes);
    EXPECT_TRUE(sizes.contains(QRegularExpression(QStringLiteral("Page +2 size: +555 x 375 pts"))));
    EXPECT_EQ(text({QStringLiteral("-l"), QStringLiteral("1")}).simplified(),
              QStringLiteral("haut bas"));
    EXPECT_TRUE(test_support::readFile(path()).contains("/Rect [ 35 "));
    run(QStringLiteral("qpdf"), {QStringLiteral("--check"), path()});
}

TEST_F(PdfFile, surfacesStandWhereTheyArePlacedAndAreCut) {
    printIn(u"Arial", 150, QStringLiteral("visible"));
    printIn(u"Arial", 6300, QStringLiteral("dessous"));
    surface.fill(8000, 0, 3000, 9000, 0xffff0000, page::FillMode::Copy);
    page::Surface title(SurfaceId::Titre, 9000, fonts, recording);
    title.print(QStringLiteral("titre"));
    page::Surface other(SurfaceId::PictureIllus, 9000, fonts, recording);
    other.print(QStringLiteral("ailleurs"));
    page::Sheet page = sheet();
    page.surfaces.insert(page.surfaces.begin(), {SurfaceId::Titre, 1500, 150, 9000, 480});
    write({page});
    EXPECT_EQ(text().simplified(), QStringLiteral("titre visible"));
    run(QStringLiteral("pdftoppm"),
        {QStringLiteral("-r"), QStringLiteral("96"), QStringLiteral("-singlefile"),
         QStringLiteral("-png"), path(), path(QStringLiteral("p"))});
    const QImage whole(path(QStringLiteral("p.png")));
    EXPECT_EQ(whole.pixel(699, 459), 0xffff0000u);
    EXPECT_EQ(whole.pixel(701, 300), 0xffffffffu);
    EXPECT_EQ(whole.pixel(690, 461), 0xffffffffu);
    EXPECT_EQ(whole.pixel(690, 59), 0xffffffffu);
}

} // namespace
