#pragma once

#include "output/pdf/pdf_file.h"
#include "output/raster/raster_surface.h"
#include "page/surface.h"
#include "support/files.h"
#include "support/recording_text.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace test_support {

/// A picture that is a file in memory.
class FilePicture : public page::Picture {
public:
    FilePicture(QByteArray bytes, page::PictureFormat format)
        : bytes_(std::move(bytes)), format_(format), image_(QImage::fromData(bytes_)) {}

    QSize size() const override { return image_.size(); }
    QImage image(QSize pixels) const override {
        ++decoded;
        return image_.scaled(pixels);
    }
    page::PictureFormat format() const override { return format_; }
    const QByteArray& bytes() const override { return bytes_; }

    mutable int decoded = 0;

private:
    QByteArray bytes_;
    page::PictureFormat format_;
    QImage image_;
};

/// Draws a page on a column of 600 by 400 pixels, writes it to PDF files and reads those back with
/// programs of other makers.
class PdfBench : public testing::Test {
protected:
    static constexpr double kLeft = 1500, kTop = 900;

    page::Sheet sheet(int number = 0, const QString& title = {}) const {
        page::Sheet sheet;
        sheet.width = kLeft + 9600;
        sheet.height = kTop + 6600;
        sheet.title = title;
        sheet.number = number;
        sheet.surfaces = {{page::SurfaceId::PictureTexte, kLeft, kTop, 9000, 6000}};
        page::putOnSheet(recording, fonts, sheet);
        return sheet;
    }

    QString path(const QString& name = QStringLiteral("pages.pdf")) const {
        return directory.filePath(name);
    }

    void write(const std::vector<page::Sheet>& sheets, const output::PdfDocument& document = {},
               const QString& name = QStringLiteral("pages.pdf")) {
        output::PdfFile pdf(path(name), fonts, document);
        for (const page::Sheet& one : sheets)
            ASSERT_TRUE(pdf.addSheet(one)) << qPrintable(pdf.error());
        ASSERT_TRUE(pdf.finish()) << qPrintable(pdf.error());
    }

    /// What another program says; `status` is what it has to exit with.
    static QByteArray run(const QString& program, const QStringList& arguments, int status = 0) {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished()) << qPrintable(program);
        QByteArray said = process.readAll();
        EXPECT_EQ(process.exitCode(), status) << said.constData();
        return said;
    }

    QString text(const QStringList& options = {}) const {
        return QString::fromUtf8(
            run(QStringLiteral("pdftotext"), options + QStringList{path(), QStringLiteral("-")}));
    }

    /// Rows of a tool's table, without its two header lines.
    QStringList listed(const QString& program, QStringList arguments = {}) const {
        const QString said = QString::fromUtf8(run(program, arguments << path()));
        return said.split(u'\n', Qt::SkipEmptyParts).mid(2);
    }

    /// The first page as poppler shows it at 96 pixels to the inch.
    QImage page() const {
        run(QStringLiteral("pdftoppm"),
            {QStringLiteral("-r"), QStringLiteral("96"), QStringLiteral("-singlefile"),
             QStringLiteral("-png"), path(), path(QStringLiteral("shown"))});
        return QImage(path(QStringLiteral("shown.png")));
    }

    /// The column alone.
    QImage shown() const { return page().copy(100, 60, 600, 400); }

    QImage onScreen() const {
        output::RasterSurface raster(page::SurfaceId::PictureTexte, 600, fonts, 0xffffffff);
        raster.play(recording);
        return raster.image(400);
    }

    void print(double x, double y, const QString& words) {
        surface.setPenX(x);
        surface.setPenY(y);
        surface.print(words);
    }

    QTemporaryDir directory;
    page::FontBook fonts;
    page::Recording recording;
    page::Surface surface{page::SurfaceId::PictureTexte, 9000, fonts, recording};
};

} // namespace test_support
