#include "output/pdf/pdf_printer.h"

extern "C" Q_DECL_EXPORT platform::Printer* orvalentePdfPrinter(const QString& path,
                                                                const page::FontBook& fonts,
                                                                const platform::Paper& paper) {
    return new output::PdfPrinter(path, fonts, paper);
}
