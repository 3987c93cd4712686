#pragma once

#include "page/sheet.h"

#include <QString>

namespace platform {

/// A sheet of paper and the part of it that can be printed on, in twips.
struct Paper {
    double width, height;
    double left, top; ///< of the printable part
    double printableWidth, printableHeight;
};

/// A4 upright with margins of 10 mm, where nobody chose anything else.
inline constexpr Paper kPlainPaper{11906, 16838, 567, 567, 10772, 15704};

/// A printer, or a file in its place: one job after the other, each of any number of sheets.
class Printer {
public:
    virtual ~Printer() = default;

    /// The paper that the next sheet is printed on.
    virtual Paper paper() const = 0;

    /// Starts a job; `title` is what queues and files call it. False when there is no printer or
    /// the file cannot be written; the job then takes its sheets to no effect.
    virtual bool begin(const QString& title) = 0;

    /// Prints a sheet, which is enlarged or reduced as a whole to the paper's width. False once the
    /// job has failed.
    virtual bool print(const page::Sheet& sheet) = 0;

    /// Ends the job and hands it over. False when any part of it failed.
    virtual bool end() = 0;

    /// Why the last job failed: a French sentence without full stop. Empty when it did not.
    virtual QString error() const = 0;
};

/// The dialog in which a printer is chosen and set up.
class PrinterSetup {
public:
    enum class Outcome {
        Confirmed,
        Cancelled,
        Busy, ///< another job is under way; the person has been told
        Gone, ///< nobody can answer any more: the program ends
    };

    virtual ~PrinterSetup() = default;
    virtual Outcome ask() = 0;
};

} // namespace platform
