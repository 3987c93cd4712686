#pragma once

#include "platform/cairo/pdf_file.h"
#include "platform/printer.h"

#include <optional>

namespace platform {

/// Prints into a PDF file, on plain paper: a job is the whole file. Sheets keep their size, so one
/// that was laid out larger than the paper gives a larger page.
class PdfPrinter : public Printer {
public:
    /// `fonts` must be the one that the sheets are laid out with, and outlive the printer.
    PdfPrinter(QString path, const FontBook& fonts) : path_(std::move(path)), fonts_(fonts) {}

    Paper paper() const override { return kPlainPaper; }
    bool begin(const QString& title) override;
    bool print(const Sheet& sheet) override;
    bool end() override;
    QString error() const override { return error_; }

private:
    QString path_;
    const FontBook& fonts_;
    std::optional<PdfFile> file_;
    QString error_;
};

} // namespace platform
