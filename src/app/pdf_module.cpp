#include "platform/cairo/pdf_printer.h"

extern "C" Q_DECL_EXPORT platform::Printer* orvalentePdfPrinter(const QString& path,
                                                                const platform::FontBook& fonts,
                                                                const platform::Paper& paper) {
    return new platform::PdfPrinter(path, fonts, paper);
}
