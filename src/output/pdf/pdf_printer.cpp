#include "output/pdf/pdf_printer.h"

namespace output {

bool PdfPrinter::begin(const platform::PrintJob& job) {
    file_.emplace(path_, fonts_, PdfDocument{job.title, {}, job.sheetOfTag});
    error_ = file_->error();
    return error_.isEmpty();
}

bool PdfPrinter::print(const page::Sheet& sheet) {
    return file_ && file_->addSheet(sheet, paper_ ? paper_->width : 0);
}

bool PdfPrinter::end() {
    if (!file_)
        return false;
    file_->finish();
    error_ = file_->error();
    file_.reset();
    return error_.isEmpty();
}

} // namespace output
