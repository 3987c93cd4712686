#pragma once

#include "page/sheet.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace platform {

/// A sheet of paper and the part of it that can be printed on, in twips.
struct Paper {
    double width, height;
    double left, top; ///< of the printable part
    double printableWidth, printableHeight;
};

/// A4 upright with margins of 10 mm, where nobody chose anything else.
inline constexpr Paper kPlainPaper{11906, 16838, 567, 567, 10772, 15704};

/// What a printer takes at once.
struct PrintJob {
    QString title; ///< what queues and files call it

    /// Number of the sheet (Sheet::number) of this job that the tag of a link leads to; nothing for
    /// tags that lead elsewhere. May be empty: then no link is live. Only files have links.
    std::function<std::optional<int>(const QString& tag)> sheetOfTag = {};
};

/// Where jobs go; both are empty as long as nobody knows.
struct PrintTarget {
    QString file;    ///< absolute path of a PDF file; empty for printers
    QString printer; ///< what the system calls it; empty for files
};

/// A printer, or a file in its place: one job after the other, each of any number of sheets.
class Printer {
public:
    virtual ~Printer() = default;

    /// The paper that the next sheet is printed on.
    virtual Paper paper() const = 0;

    /// Where the next job goes, and where the last one went until that is changed.
    virtual PrintTarget target() const { return {}; }

    /// Starts a job. False when there is no printer or the file cannot be written; the job then
    /// takes its sheets to no effect.
    virtual bool begin(const PrintJob& job) = 0;

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

/// What is about to be printed: one choice of pages or several, each page with the sheets of paper
/// that it takes.
class PrintProposal {
public:
    virtual ~PrintProposal() = default;

    /// Captions; the first is the usual choice. At least one.
    virtual QStringList choices() const = 0;
    /// At least 1.
    virtual int pageCount(int choice) const = 0;
    /// The sheets of a page, counted from 0, in the letters in which they will be printed. At least
    /// one.
    virtual std::vector<page::Sheet> sheets(int choice, int page, const Paper& paper) = 0;
};

/// The window that shows what is about to be printed.
class PrintPreview {
public:
    virtual ~PrintPreview() = default;

    /// The choice to be printed; nothing when it is to be none, or when nobody can answer any more.
    virtual std::optional<int> ask(PrintProposal& proposal) = 0;
};

} // namespace platform
