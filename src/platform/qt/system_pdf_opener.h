#pragma once

#include "platform/pdf_opener.h"

namespace platform {

/// By the desktop's own way to open a document; no command line is put together of the name.
class SystemPdfOpener : public PdfOpener {
public:
    bool open(const QString& file) override;
};

} // namespace platform
