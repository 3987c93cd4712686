#pragma once

#include "coursetool/drawing_request.h"
#include "platform/qt/font_book.h"
#include "platform/sheet.h"

#include <QString>

#include <functional>
#include <memory>

namespace coursetool {

/// Where the links of a drawn course lead, by their tags.
struct SheetLinks {
    /// Name, without ending, of the file that holds the sheet; empty when none does.
    std::function<QString(const QString& tag)> file;
    /// Number of the sheet; nothing when it is not drawn.
    std::function<std::optional<int>(const QString& tag)> number;
};

/// Takes sheets and makes files of them.
class SheetFiles {
public:
    virtual ~SheetFiles() = default;

    /// Writes a sheet; `name` is that of its file, without directory and ending, where each sheet
    /// has a file of its own. False when writing more is of no use: the fault is in the report.
    virtual bool add(const platform::Sheet& sheet, const QString& name) = 0;

    /// To be called after the last sheet.
    virtual void finish() {}
};

/// The files that the request asks for. One sheet goes into `output` itself; all go into a
/// directory there, which is made, or into one PDF. A fault, and null, when that directory cannot
/// be made.
std::unique_ptr<SheetFiles> openSheetFiles(const RenderRequest& request,
                                           const platform::FontBook& fonts, SheetLinks links,
                                           Report& report);

} // namespace coursetool
