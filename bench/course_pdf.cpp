// A course of rich pages: its sources to one PDF file, or as HTML for other programs.
//   course_pdf html N DIR        writes DIR/cours.html and its picture, DIR/photo.jpg
//   course_pdf pages N DIR       writes DIR/cours.pdf from N page sources and DIR/photo.jpg

#include "bench_page.h"
#include "output/pdf/pdf_file.h"
#include "process_memory.h"
#include "rich_page.h"
#include "viewer/page_sheet.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QRandomGenerator>

#include <algorithm>
#include <cstdio>

namespace {

/// A photograph: shades that change smoothly under some grain, the same in every run.
QByteArray photograph() {
    QImage image(400, 300, QImage::Format_RGB32);
    QRandomGenerator grain(1);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const int shade = (x + y) / 4 + grain.bounded(36);
            image.setPixel(x, y, qRgb(shade, shade / 2 + y / 4, 200 - shade / 2));
        }
    QByteArray file;
    QBuffer buffer(&file);
    image.save(&buffer, "JPEG", 75);
    return file;
}

class Photograph : public page::Picture {
public:
    explicit Photograph(const QString& path) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            bytes_ = file.readAll();
    }

    QSize size() const override { return {400, 300}; }
    QImage image(QSize pixels) const override { return QImage::fromData(bytes_).scaled(pixels); }
    page::PictureFormat format() const override { return page::PictureFormat::Jpeg; }
    const QByteArray& bytes() const override { return bytes_; }

private:
    QByteArray bytes_;
};

/// One photograph, by whatever name.
class OnePhotograph : public markup::PictureSource {
public:
    explicit OnePhotograph(const QString& path) : picture_(std::make_shared<Photograph>(path)) {}

    QString locatePicture(const QString& name) override { return name; }
    std::shared_ptr<const page::Picture> load(const QString&) override { return picture_; }
    std::shared_ptr<const page::Picture> symbol(const QString&) override { return nullptr; }

private:
    std::shared_ptr<const page::Picture> picture_;
};

bool writePdf(int count, const QString& directory) {
    OnePhotograph pictures(directory + QStringLiteral("/photo.jpg"));
    bench::Page page(pictures);
    output::PdfFile pdf(directory + QStringLiteral("/cours.pdf"), page.fonts,
                        {QStringLiteral("Cours d’optique"), QStringLiteral("Un professeur"),
                         [](const QString& tag) { return tag.mid(3).toInt(); }});
    const QString title = QStringLiteral("La réfraction de la lumière");
    for (int number = 0; number < count; ++number) {
        page.draw(bench::coursePageSource(number, count), title);
        page::Sheet sheet = viewer::pageSheet(page.drawn, page.fonts);
        sheet.title = title;
        sheet.number = number + 1;
        pdf.addSheet(sheet);
    }
    const bool written = pdf.finish();
    if (!written)
        std::fprintf(stderr, "%s\n", qPrintable(pdf.error()));
    return written;
}

bool writeHtml(int count, const QString& directory) {
    QFile photo(directory + QStringLiteral("/photo.jpg"));
    QFile html(directory + QStringLiteral("/cours.html"));
    if (!photo.open(QIODevice::WriteOnly) || !html.open(QIODevice::WriteOnly))
        return false;
    photo.write(photograph());
    html.write("<!DOCTYPE html><meta charset='utf-8'><title>Cours d’optique</title><style>"
               "body{font:16px Liberation Sans;width:600px}section{page-break-after:always}"
               "table{width:580px;border-spacing:0}.b td{border:1px solid blue}</style>\n");
    for (int number = 0; number < count; ++number)
        html.write(bench::coursePageHtml(number, count).toUtf8());
    return html.flush();
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    if (argc != 4)
        return 2;
    const int count = std::clamp(QByteArray(argv[2]).toInt(), 1, 100'000);
    const QString directory = QString::fromLocal8Bit(argv[3]);
    const bool done =
        QByteArray(argv[1]) == "html" ? writeHtml(count, directory) : writePdf(count, directory);
    bench::printPeakMemory();
    return done ? 0 : 1;
}
