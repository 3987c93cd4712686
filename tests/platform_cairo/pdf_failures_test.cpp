#include "platform_cairo/pdf_bench.h"

#include <QDir>

#if defined(Q_OS_UNIX)
#include <sys/resource.h>

#include <csignal>
#endif

#include <limits>

namespace {

class PdfFailures : public test_support::PdfBench {
protected:
    /// What is said of a file with one page that cannot be written; no page, when `pages` is 0.
    QString failure(const QString& name, int pages = 1) {
        output::PdfFile pdf(path(name), fonts, {});
        for (int i = 0; i < pages; ++i)
            pdf.addSheet(sheet());
        EXPECT_FALSE(pdf.finish());
        return pdf.error();
    }
};

TEST_F(PdfFailures, aPlaceThatCannotBeWrittenIsTold) {
    EXPECT_EQ(
        failure(QStringLiteral("absent/pages.pdf")),
        QStringLiteral(
            "le fichier ne peut pas être créé\u00A0: le fichier ou son dossier n’existe pas"));
    EXPECT_EQ(failure(QStringLiteral(".")),
              QStringLiteral("le fichier ne peut pas être créé\u00A0: un dossier porte ce nom"));
    EXPECT_EQ(failure(QStringLiteral("vide.pdf"), 0),
              QStringLiteral("il n’y a aucune page à écrire"));
    EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files), QStringList());
}

TEST_F(PdfFailures, anUnfinishedFileLeavesTheFormerOne) {
    test_support::writeFile(path(), "ancien");
    {
        output::PdfFile pdf(path(), fonts, {});
        EXPECT_TRUE(pdf.addSheet(sheet()));
    }
    EXPECT_EQ(test_support::readFile(path()), QByteArray("ancien"));
    EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files), QStringList{"pages.pdf"});
}

#if defined(Q_OS_UNIX)
TEST_F(PdfFailures, aFullDiscLeavesTheFormerFile) {
    test_support::writeFile(path(), "ancien");
    print(150, 150, QStringLiteral("Un texte"));
    // A process that may write 2 KB to a file stands for a disc with no more room.
    rlimit former;
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &former), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit little{2048, former.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &little), 0);
    const QString told = failure(QStringLiteral("pages.pdf"), 3);
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &former), 0);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(told,
              QStringLiteral(
                  "le fichier ne peut pas être écrit\u00A0: le fichier deviendrait trop grand"));
    EXPECT_EQ(test_support::readFile(path()), QByteArray("ancien"));
    EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList{"pages.pdf"});
}
#endif

TEST_F(PdfFailures, oddDrawingsGiveASoundFile) {
    constexpr double kHuge = 1e30;
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    const char16_t odd[] = {u'a', 1, 0xD800, 0xFFFE, 0xFDD0, 0xFFFF, 9, u'b', 0};
    for (const char* face : {"Arial", "Symbol", "Wingdings", ""}) {
        surface.setFace(QString::fromLatin1(face));
        print(150, 150, QString::fromUtf16(odd));
        print(-3e38, 3e38, QStringLiteral("loin"));
    }
    surface.setFace(QStringLiteral("Symbol"));
    print(150, 600, QString::fromLatin1("\x7F\x9F\xA0\xF0\xFF"));
    surface.setFontPoints(0);
    print(150, 600, QStringLiteral("rien"));
    surface.setFontPoints(2048);
    surface.setUnderline(true);
    print(-20000, -20000, QStringLiteral("énorme"));
    surface.setLineWidth(32767);
    surface.line(-kHuge, 100, kHuge, 3e38);
    surface.line(-kHuge, 100, kHuge, 100);
    surface.line(5, 5, 5, 5);
    surface.fill(-kHuge, -kHuge, 2 * kHuge, 2 * kHuge, 0xffdce6ff, page::FillMode::Mask);
    surface.fill(kNan, 0, kNan, 50, 0xffdce6ff, page::FillMode::Copy);
    surface.fill(0, 0, -50, 50, 0xffdce6ff, page::FillMode::Copy);
    const auto empty =
        std::make_shared<test_support::FilePicture>(QByteArray("rompu"), page::PictureFormat::Jpeg);
    surface.setPenX(0);
    surface.setPenY(0);
    for (const double size : {0.0, -5.0, 400.0, kHuge, kNan})
        surface.paint(empty, size, size, QStringLiteral("rompu.jpg"), false);
    surface.paint(nullptr, 100, 100, QStringLiteral("rien"), false);
    page::Sheet page = sheet(1);
    page.links.push_back(
        {page::SurfaceId::PictureTexte, kNan, -kHuge, kHuge, 1, QStringLiteral("x"), {}});
    page.links.push_back({page::SurfaceId::Titre, 0, 0, 50, 50, QStringLiteral("x"), {}});
    page::Sheet none;
    none.width = none.height = 0;
    write({page, none}, {QString(), QString(), [](const QString&) { return 1; }});
    run(QStringLiteral("qpdf"), {QStringLiteral("--check"), path()});
    EXPECT_TRUE(text().contains(u"ab") || text().contains(u'a'));
}

} // namespace
