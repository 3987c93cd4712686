#include "output/paper/qt_printer.h"
#include "output/pdf/pdf_printer.h"
#include "page/pictures/picture_file.h"
#include "page/pictures/svg_picture.h"
#include "page/surface.h"
#include "printing/printed_pdf.h"
#include "support/fake_pictures.h"
#include "viewer/paper_layout.h"

#include <QPrinter>
#include <QTemporaryDir>

namespace {

using page::FillMode;
using test_support::PrintedPdf;

class QtPrinter : public testing::Test {
protected:
    void print(const char16_t* face, double y, const QString& words, QRgb ink = 0xff000000) {
        surface.setFace(QString::fromUtf16(face));
        surface.setInk(ink);
        surface.setPenX(150);
        surface.setPenY(y);
        surface.print(words);
    }

    void printTo(platform::Printer& device) const {
        EXPECT_TRUE(device.begin({"essai"}));
        for (const auto& sheet :
             viewer::layOnPaper(recording, {"pied", {}}, platform::kPlainPaper, fonts))
            EXPECT_TRUE(device.print(sheet));
        EXPECT_TRUE(device.end()) << qPrintable(device.error());
    }

    /// The same page by both printers.
    void printBoth() {
        output::QtPrinter qt(fonts);
        qt.device().setOutputFormat(QPrinter::PdfFormat);
        qt.device().setOutputFileName(path("qt.pdf"));
        qt.device().setPageSize(QPageSize(QPageSize::A4));
        printTo(qt);
        output::PdfPrinter cairo(path("cairo.pdf"), fonts);
        printTo(cairo);
    }

    QImage shown(const QString& name) const {
        PrintedPdf::run("pdftoppm", {"-r", "96", "-singlefile", "-png", "-x", "0", "-y", "0", "-W",
                                     "790", "-H", "1000", path(name), path(name)});
        return QImage(path(name + ".png"));
    }

    /// Pixels that differ clearly between the two, in parts of all.
    double difference() const {
        const QImage a = shown("qt.pdf");
        const QImage b = shown("cairo.pdf");
        EXPECT_EQ(a.size(), b.size());
        int different = 0;
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < a.width(); ++x) {
                const QRgb p = a.pixel(x, y);
                const QRgb q = b.pixel(x, y);
                different += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                                 std::abs(qBlue(p) - qBlue(q)) >
                             192;
            }
        return different / double(a.width() * a.height());
    }

    /// A drawing of 40 pixels.
    static std::shared_ptr<const page::Picture> disc() {
        return page::SvgPicture::read("<svg xmlns='http://www.w3.org/2000/svg' width='40' "
                                      "height='40'><circle cx='20' cy='20' r='15' "
                                      "fill='#800000'/></svg>");
    }

    QString path(const QString& name) const { return directory.filePath(name); }

    QTemporaryDir directory;
    page::FontBook fonts;
    page::Recording recording;
    page::Surface surface{page::SurfaceId::Printer, 9000, fonts, recording};
};

TEST_F(QtPrinter, textIsTextWhereTheFontBookPutsIt) {
    print(u"Arial", 0,
          QStringLiteral("Incompréhensibilité wwwwwwwwwwwwwwwwwwwwwwwwwwwwwww AVATAR"));
    surface.setBold(true);
    surface.setFontPoints(24);
    print(u"Times new roman", 600, QStringLiteral("office fluide « cœur »"));
    surface.setItalic(true);
    print(u"Comic Sans MS", 1500, QStringLiteral("Un rayon qui passe"));
    printBoth();
    const auto qt = PrintedPdf(path("qt.pdf")).words();
    const auto cairo = PrintedPdf(path("cairo.pdf")).words();
    ASSERT_EQ(qt.size(), cairo.size());
    ASSERT_EQ(qt.size(), 13);
    for (qsizetype i = 0; i < qt.size(); ++i) {
        EXPECT_EQ(qt[i].text, cairo[i].text);
        EXPECT_NEAR(qt[i].left, cairo[i].left, 8) << qPrintable(qt[i].text);
        EXPECT_NEAR(qt[i].right, cairo[i].right, 8) << qPrintable(qt[i].text);
    }
    // Readers pass over a letter that stands twice at its place. Blanks may be tabs.
    for (const char* file : {"qt.pdf", "cairo.pdf"}) {
        const QString drawn = PrintedPdf::run("mutool", {"trace", path(file)});
        EXPECT_EQ(drawn.count(QRegularExpression("<g unicode=\"[^ &]")), 93) << file;
    }
    const QString faces = PrintedPdf(path("qt.pdf")).listed("pdffonts").join(u'\n');
    for (const char* face : {"LiberationSans ", "LiberationSerif-Bold ", "ComicNeue-BoldItalic "})
        EXPECT_TRUE(faces.contains(QLatin1String(face))) << qPrintable(faces);
}

TEST_F(QtPrinter, signsMaskFillsLinesAndPicturesLookAsInTheFile) {
    QString codes;
    for (char16_t code = 0x21; code < 0x7F; ++code)
        codes += QChar(code);
    surface.setFontPoints(8);
    print(u"Symbol", 0, codes);
    print(u"Wingdings", 300, codes.left(40));
    print(u"Symbol", 600, QString::fromLatin1("\xB7\xAE\xD6\xE5\xF2"));
    surface.setFontPoints(20);
    // Mask fills over black and red text, over each other, over a fill and over a picture.
    print(u"Arial", 1500, QStringLiteral("noir"));
    surface.fill(0, 1500, 9000, 500, 0xffdce6ff, FillMode::Mask);
    print(u"Arial", 2200, QStringLiteral("rouge"), 0xffff0000);
    surface.fill(0, 2200, 6000, 500, 0xff00ffff, FillMode::Mask);
    surface.fill(3000, 2100, 3000, 900, 0xffffff00, FillMode::Mask);
    surface.fill(0, 3300, 6000, 900, 0xffff00ff, FillMode::Copy);
    surface.fill(1500, 3450, 3000, 450, 0xffffff00, FillMode::Mask);
    surface.setPenX(3000);
    surface.setPenY(4500);
    surface.paint(std::make_shared<test_support::PlainPicture>(QSize(20, 20), Qt::white), 1500,
                  1500, "p", false);
    surface.fill(2400, 4800, 1500, 600, 0xff00ff00, FillMode::Mask);
    // Over a drawing, which is transparent around its disc.
    surface.setPenX(5400);
    surface.paint(disc(), 1500, 1500, "d.svg", false);
    surface.fill(5400, 4500, 750, 1500, 0xffffc0c0, FillMode::Mask);
    surface.setInk(0xff000080);
    surface.line(0, 6300, 9000, 6300);
    surface.line(0, 6300, 3000, 7200);
    print(u"Arial", 7500, QStringLiteral("insé\u00ADcable\ttab \u202Eabc"));
    printBoth();
    EXPECT_LT(difference(), 0.001);
    const QImage page = shown("qt.pdf");
    const auto at = [&](double x, double y) { // twips of the column
        return page.pixel(qRound((567 + 886 + x) / 15), qRound((567 + y) / 15));
    };
    EXPECT_EQ(at(1500, 2650), 0xff00ffffu);
    EXPECT_EQ(at(4500, 2500), 0xff00ff00u) << "both fills";
    EXPECT_EQ(at(4500, 2850), 0xffffff00u);
    EXPECT_EQ(at(3000, 3600), 0xffff0000u) << "over a fill";
    EXPECT_EQ(at(3450, 5000), 0xff00ff00u) << "over a picture";
    EXPECT_EQ(at(4200, 5000), 0xffffffffu);
    EXPECT_EQ(at(5800, 5250), 0xff800000u & 0xffffc0c0u) << "over a drawing";
    EXPECT_EQ(at(6500, 5250), 0xff800000u);
    EXPECT_EQ(at(5450, 4550), 0xffffc0c0u) << "beside its disc";
    EXPECT_EQ(at(6850, 4550), 0xffffffffu);
}

TEST_F(QtPrinter, drawingsAreAsFineAsPrintAndPhotographsKeepTheirPixels) {
    surface.paint(disc(), 3000, 3000, "a.svg", false);
    surface.paint(std::make_shared<test_support::PlainPicture>(QSize(300, 200)), 600, 600, "b.bmp",
                  false);
    output::QtPrinter qt(fonts);
    qt.device().setOutputFormat(QPrinter::PdfFormat);
    qt.device().setOutputFileName(path("qt.pdf"));
    printTo(qt);
    const QString images = PrintedPdf(path("qt.pdf")).listed("pdfimages", {"-list"}).join(u'\n');
    for (const char* size : {" 800   800 ", " 300   200 "})
        EXPECT_TRUE(images.contains(size)) << qPrintable(images);
    const QImage page = shown("qt.pdf");
    EXPECT_NEAR(qRed(page.pixel((567 + 886 + 1500) / 15, (567 + 1500) / 15)), 0x80, 2);
}

/// A file is written by what the printer was given for it.
TEST_F(QtPrinter, lettersOfSignFacesAreFoundInFiles) {
    print(u"Symbol", 0, QStringLiteral("lWab"));
    output::QtPrinter qt(
        fonts, [](const QString& file, const page::FontBook& book, const platform::Paper& paper) {
            return std::unique_ptr<platform::Printer>(
                std::make_unique<output::PdfPrinter>(file, book, paper));
        });
    qt.device().setOutputFormat(QPrinter::PdfFormat);
    const struct {
        QPageSize::PageSizeId size;
        QPageLayout::Orientation lie;
        const char* points;
    } rows[] = {{QPageSize::A4, QPageLayout::Portrait, "595 x 842 pts (A4)"},
                {QPageSize::A5, QPageLayout::Landscape, "595 x 420 pts (A5)"}};
    for (const auto& row : rows) {
        qt.device().setOutputFileName(path("file.pdf"));
        qt.device().setPageSize(QPageSize(row.size));
        qt.device().setPageOrientation(row.lie);
        ASSERT_TRUE(qt.begin({"essai"}));
        EXPECT_TRUE(qt.isBusy());
        EXPECT_FALSE(qt.begin({"un autre"})) << "one job at a time";
        for (const auto& sheet : viewer::layOnPaper(recording, {"pied", {}}, qt.paper(), fonts))
            EXPECT_TRUE(qt.print(sheet));
        EXPECT_TRUE(qt.end()) << qPrintable(qt.error());
        EXPECT_FALSE(qt.isBusy());
        const PrintedPdf pdf(path("file.pdf"));
        EXPECT_EQ(pdf.sheets(), (QList<QStringList>{{QStringLiteral("λΩαβ"), "pied"}}));
        const QString told = PrintedPdf::run("pdfinfo", {path("file.pdf")});
        EXPECT_TRUE(told.contains(row.points)) << qPrintable(told);
    }
    qt.device().setOutputFileName(path("nulle/part.pdf"));
    EXPECT_FALSE(qt.begin({"essai"}));
    EXPECT_TRUE(qt.error().startsWith(QStringLiteral("le fichier ne peut pas être créé")))
        << qPrintable(qt.error());
    EXPECT_FALSE(qt.isBusy());
}

/// What a page shows again on a later sheet.
TEST_F(QtPrinter, aPictureShowsOnEverySheetOfTheFile) {
    const auto picture = page::SvgPicture::read(
        "<svg xmlns='http://www.w3.org/2000/svg' width='50' height='50'><rect x='40' y='40' "
        "width='10' height='10' fill='#f00'/></svg>");
    for (const double y : {0.0, 20000.0}) {
        surface.setPenY(y);
        surface.paint(picture, 3000, 3000, "p", false);
    }
    output::PdfPrinter cairo(path("cairo.pdf"), fonts);
    printTo(cairo);
    for (const char* sheet : {"1", "2"}) {
        PrintedPdf::run("pdftoppm", {"-r", "96", "-f", sheet, "-l", sheet, "-singlefile", "-png",
                                     path("cairo.pdf"), path(sheet)});
        const QImage page(path(QLatin1String(sheet) + ".png"));
        EXPECT_EQ(page.pixel((567 + 886 + 2800) / 15, (567 + 2800) / 15), 0xffff0000u) << sheet;
    }
}

} // namespace
