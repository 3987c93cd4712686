#pragma once

#include "page/faces/font_book.h"
#include "page/sheet.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace output {

/// What a PDF file tells beside its pages.
struct PdfDocument {
    QString title;
    QString author;

    /// Number of the sheet (Sheet::number) that the tag of a link leads to; nothing for tags that
    /// lead to no sheet of this file. May be empty: then no link is live.
    std::function<std::optional<int>(const QString& tag)> pageOfTag;
};

/// Writes sheets into one PDF file, a page each, in the order of addSheet(). Text stays text, in
/// Unicode whatever face it was printed in; each face and each picture stands in the file once.
/// The same sheets give the same bytes.
///
///     platform::PdfFile pdf(path, fonts, {title, author, pageOfTag});
///     for (const platform::Sheet& sheet : sheets)
///         pdf.addSheet(sheet);
///     if (!pdf.finish())
///         report(pdf.error());
///
/// The file is written under another name beside `path` and takes its place in finish(), when all
/// went well; otherwise, and when finish() is never called, what stood at `path` stays.
class PdfFile {
public:
    /// `fonts` must be the one that the sheets were laid out with, and outlive the file. A path
    /// that cannot be written shows at the next call.
    PdfFile(const QString& path, const page::FontBook& fonts, PdfDocument document);
    ~PdfFile();
    PdfFile(PdfFile&&) noexcept;
    PdfFile& operator=(PdfFile&&) noexcept;

    /// Adds a page as large as the sheet (20 twips to the point; taller or wider ones than PDF
    /// allows are scaled down as a whole). It carries the sheet's title in the outline, its number
    /// as label and, when it is the first with its number, the named destination "page12". False
    /// once writing has failed; calls may go on, to no effect.
    ///
    /// `width`: of the page, in twips; the sheet is enlarged or reduced as a whole to it. 0 leaves
    /// the sheet as it is.
    bool addSheet(const page::Sheet& sheet, double width = 0);

    /// Completes the file and puts it in its place. False when it could not be written, or when no
    /// sheet was added: a PDF file has at least one page. To be called once.
    bool finish();

    /// Why there is no file: a French sentence without full stop, which names no path. Empty as
    /// long as all is well.
    QString error() const;

private:
    class Writer;
    std::unique_ptr<Writer> writer_;
};

} // namespace output
