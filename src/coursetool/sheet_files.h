#pragma once

#include "coursetool/drawing_request.h"
#include "page/faces/font_book.h"
#include "page/sheet.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace coursetool {

/// What the sheets that go into files are together.
struct SheetSet {
    QString title; ///< of a file that holds them all
    /// Name, without ending, of the file that holds the sheet a link with this tag leads to; empty
    /// when none does.
    std::function<QString(const QString& tag)> fileOfTag;
    /// Number of that sheet; nothing when it is not among them.
    std::function<std::optional<int>(const QString& tag)> numberOfTag;
};

/// Takes sheets and makes files of them.
class SheetFiles {
public:
    virtual ~SheetFiles() = default;

    /// Writes a sheet; `name` is that of its file, without directory and ending, where each sheet
    /// has a file of its own. False when writing more is of no use: the fault is in the report.
    virtual bool add(const page::Sheet& sheet, const QString& name) = 0;

    /// To be called after the last sheet.
    virtual void finish() {}
};

/// The files that the request asks for. One sheet goes into `output` itself; all go into a
/// directory there, which is made, or into one PDF. A fault, and null, when that directory cannot
/// be made.
std::unique_ptr<SheetFiles> openSheetFiles(const RenderRequest& request,
                                           const page::FontBook& fonts, SheetSet set,
                                           Report& report);

} // namespace coursetool
