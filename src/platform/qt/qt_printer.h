#pragma once

#include "platform/printer.h"
#include "platform/qt/font_book.h"

#include <memory>

class QPrinter;

namespace platform {

/// The printer of the system that was chosen last, or a PDF file. What was chosen holds until the
/// program ends. Looking for printers takes time, so nothing is done before the first use.
class QtPrinter : public Printer {
public:
    /// `fonts` must be the one that the sheets are laid out with, and outlive the printer.
    explicit QtPrinter(const FontBook& fonts);
    ~QtPrinter() override;

    /// For the dialogs that set it up; not while a job is under way.
    QPrinter& device() const;

    Paper paper() const override;
    bool begin(const QString& title) override;
    bool print(const Sheet& sheet) override;
    bool end() override;
    QString error() const override { return error_; }

private:
    class Job;

    const FontBook& fonts_;
    mutable std::unique_ptr<QPrinter> device_;
    std::unique_ptr<Job> job_;
    QString error_;
};

} // namespace platform
