#include "app/pdf_loader.h"
#include "page/surface.h"
#include "printing/printed_pdf.h"
#include "support/printing.h"

#include <QTemporaryDir>

namespace {

/// The module has the font book's code a second time; both have to place letters alike.
TEST(PdfLoader, theModuleWritesWhatTheProgramLaidOut) {
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("page.pdf"));
    page::FontBook fonts;
    page::Recording recording;
    page::Surface surface(page::SurfaceId::Printer, 9000, fonts, recording);
    surface.setFace(QStringLiteral("Symbol"));
    surface.print(QStringLiteral("lWab"));
    page::Sheet sheet;
    sheet.width = platform::kPlainPaper.width;
    sheet.height = platform::kPlainPaper.height;
    sheet.surfaces = {{page::SurfaceId::Printer, 600, 600, 9000, 9000}};
    page::putOnSheet(recording, fonts, sheet);
    const auto printer = app::loadPdfPrinter(path, fonts, platform::kPlainPaper);
    ASSERT_TRUE(printer);
    EXPECT_TRUE(printer->begin({QStringLiteral("essai")}));
    EXPECT_TRUE(printer->print(sheet));
    EXPECT_TRUE(printer->end()) << qPrintable(printer->error());
    const auto words = test_support::PrintedPdf(path).words();
    ASSERT_EQ(words.size(), 1);
    EXPECT_EQ(words[0].text, QStringLiteral("λΩαβ"));
    EXPECT_NEAR(words[0].right - words[0].left, fonts.width(surface.font(), QStringLiteral("lWab")),
                10);
}

} // namespace
