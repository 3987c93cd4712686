#pragma once

#include "page/sheet.h"
#include "page/text_metrics.h"
#include "platform/printer.h"

#include <vector>

namespace viewer {

/// The line at the foot of a printed page of the course.
struct Footer {
    QString text;
    page::Font font;
};

/// The sheets of paper that a page of the course takes. Its column of 600 pixels stands in the
/// middle of the printable part; on narrower paper the whole sheet is laid out larger, for the
/// printer to reduce.
///
/// A page a little longer than a sheet, by a fifth at most, is reduced to one: its last lines would
/// stand alone on a second. A longer one goes on on further sheets, at full size: reduced, it would
/// be hard to read. It is cut where neither a line of text nor a picture, a row of a table or a
/// sign would be; what is taller than a sheet by itself shows in part on each. The footer stands on
/// the last sheet, in smaller letters when it is wider than the paper. Room for it is kept on every
/// sheet.
/// `links` stand on SurfaceId::Printer, as the drawing does.
std::vector<page::Sheet> layOnPaper(const page::Recording& drawing, const Footer& footer,
                                    const platform::Paper& paper, const page::TextMetrics& metrics,
                                    const std::vector<page::LinkArea>& links = {});

} // namespace viewer
