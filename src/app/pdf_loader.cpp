#include "app/pdf_loader.h"

#include "app/loaded_function.h"

namespace app {

std::unique_ptr<platform::Printer> loadPdfPrinter(const QString& path, const page::FontBook& fonts,
                                                  const platform::Paper& paper) {
    using Make =
        platform::Printer* (*)(const QString&, const page::FontBook&, const platform::Paper&);
    static const auto make = reinterpret_cast<Make>(loadedFunction(
        ORVALENTE_PDF_MODULE, "orvalentePdfPrinter",
        "les fichiers PDF sont écrits sans que leurs lettres grecques puissent être cherchées"));
    return std::unique_ptr<platform::Printer>(make ? make(path, fonts, paper) : nullptr);
}

} // namespace app
