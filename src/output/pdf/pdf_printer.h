#pragma once

#include "output/pdf/pdf_file.h"
#include "platform/printer.h"

#include <optional>

namespace output {

/// Prints into a PDF file: a job is the whole file.
class PdfPrinter : public platform::Printer {
public:
    /// `fonts` must be the one that the sheets are laid out with, and outlive the printer. Without
    /// a paper it is plain, and sheets keep their size, so that one that was laid out larger gives
    /// a larger page.
    PdfPrinter(QString path, const page::FontBook& fonts,
               std::optional<platform::Paper> paper = std::nullopt)
        : path_(std::move(path)), fonts_(fonts), paper_(paper) {}

    platform::Paper paper() const override { return paper_.value_or(platform::kPlainPaper); }
    platform::PrintTarget target() const override { return {path_, {}}; }
    bool begin(const platform::PrintJob& job) override;
    bool print(const page::Sheet& sheet) override;
    bool end() override;
    QString error() const override { return error_; }

private:
    QString path_;
    const page::FontBook& fonts_;
    std::optional<platform::Paper> paper_;
    std::optional<PdfFile> file_;
    QString error_;
};

} // namespace output
