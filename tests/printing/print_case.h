#pragma once

#include "output/paper/qt_printer.h"
#include "printing/printed_pdf.h"
#include "viewer/page_printer.h"
#include "viewer/window_bench.h"

#include <QPrinter>
#include <QTemporaryDir>

namespace test_support {

/// What a sheet shows, in a line an operation: texts, and where all stands.
inline QString textOf(const page::Sheet& sheet) {
    QString all = QStringLiteral("%1 %2\n").arg(sheet.title).arg(sheet.number);
    for (const page::DrawnOperation& operation : sheet.operations) {
        const auto* text = std::get_if<page::TextOperation>(&operation);
        const auto* fill = std::get_if<page::FillOperation>(&operation);
        all += text   ? QStringLiteral("%1 %2 %3\n").arg(text->x).arg(text->y).arg(text->text)
               : fill ? QStringLiteral("%1 %2 %3\n").arg(fill->x).arg(fill->y).arg(fill->height)
                      : QStringLiteral("%1\n").arg(operation.index());
    }
    return all;
}

/// A printer that counts; nothing is printed.
class CountingPrinter : public platform::Printer {
public:
    platform::Paper paper() const override { return platform::kPlainPaper; }
    platform::PrintTarget target() const override { return where; }
    bool begin(const platform::PrintJob&) override { return ++jobs > 0; }
    bool print(const page::Sheet&) override {
        ++sheets;
        if (whilePrinting)
            whilePrinting();
        return sheets != refused;
    }
    bool end() override { return ++ended > 0 && canEnd; }
    QString error() const override { return {}; }

    std::function<void()> whilePrinting;
    int refused = -1;   ///< the sheet that it does not take, counted from 1
    bool canEnd = true; ///< whether it can hand a job over
    platform::PrintTarget where;
    int jobs = 0, sheets = 0, ended = 0;
};

/// Prints from the real main window on a course in memory, into a PDF file.
class PrintCase : public testing::Test {
protected:
    static MemoryRecordset::Record record(int number, const QString& first, const QString& last,
                                          const QString& source = {}) {
        const QString text = QStringLiteral("Voici la page %1¶\r\n").arg(number);
        return page(number, source.isEmpty() ? text : source,
                    {{QStringLiteral("imprimable"), true},
                     {QStringLiteral("debutimp"), first},
                     {QStringLiteral("finimp"), last}});
    }

    viewer::PagePrinter pages(platform::Printer& device, std::function<bool()> isStopped = {}) {
        return viewer::PagePrinter(
            {bench->state, bench->bound, bench->tools, device, std::move(isStopped)});
    }

    /// Opens the course at its first record.
    void open(QList<MemoryRecordset::Record> course) {
        bench = std::make_unique<WindowBench>(std::move(course));
        bench->start();
    }

    /// The sheets that the current record gives.
    PrintedPdf print() {
        printer.device().setOutputFormat(QPrinter::PdfFormat);
        printer.device().setOutputFileName(path());
        const auto run = pages(printer).imprimepage();
        EXPECT_TRUE(run.hasBegun && run.wanted > 0 && !run.isCut());
        EXPECT_EQ(printer.error(), QString());
        return PrintedPdf(path());
    }

    QString path() const { return directory.filePath(QStringLiteral("pages.pdf")); }

    static QString footer(const QString& mention = {}) {
        return QStringLiteral("Orvalente - Physique et chimie, collège et lycée - © KAROPE 2026") +
               mention;
    }

    QTemporaryDir directory;
    page::FontBook fonts;
    output::QtPrinter printer{fonts};
    std::unique_ptr<WindowBench> bench;
};

} // namespace test_support
