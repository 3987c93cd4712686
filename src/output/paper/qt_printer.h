#pragma once

#include "page/faces/font_book.h"
#include "platform/printer.h"

#include <memory>

class QPrinter;

namespace output {

/// What writes a job into a PDF file. Null when there is no such thing.
using PdfPrinterMaker = std::unique_ptr<platform::Printer> (*)(const QString& path,
                                                               const page::FontBook& fonts,
                                                               const platform::Paper& paper);

/// The printer of the system that was chosen last, or a PDF file. What was chosen holds until the
/// program ends. Looking for printers takes time, so nothing is done before the first use.
class QtPrinter : public platform::Printer {
public:
    /// `fonts` must be the one that the sheets are laid out with, and outlive the printer. PDF
    /// files are written by what `pdf` makes: in those of the toolkit the letters of sign faces can
    /// be read, but not found. Without it, and where it makes nothing, they are the toolkit's.
    explicit QtPrinter(const page::FontBook& fonts, PdfPrinterMaker pdf = nullptr);
    ~QtPrinter() override;

    /// Whether a job is under way: the printer takes one at a time.
    bool isBusy() const { return job_ != nullptr || pdf_ != nullptr; }

    /// For the dialogs that set it up; not while a job is under way.
    QPrinter& device() const;

    platform::Paper paper() const override;
    platform::PrintTarget target() const override;
    bool begin(const platform::PrintJob& job) override;
    bool print(const page::Sheet& sheet) override;
    bool end() override;
    QString error() const override { return error_; }

private:
    class Job;

    bool beginOnDevice();

    const page::FontBook& fonts_;
    PdfPrinterMaker makePdf_;
    mutable std::unique_ptr<QPrinter> device_;
    std::unique_ptr<Job> job_;
    std::unique_ptr<platform::Printer> pdf_; ///< takes the job's place where that is a file
    QString error_;
};

} // namespace output
