#include "output/paper/qt_printer.h"

#include "files/cause.h"
#include "output/paper/paper_painter.h"

#include <QFileInfo>
#include <QPrinter>

namespace output {

namespace {

constexpr double kTwipsPerInch = 1440;

/// What every printer can leave free, in millimetres.
constexpr QMarginsF kMargins{10, 10, 10, 10};

QString interrupted() {
    return QStringLiteral("l’impression a été interrompue");
}

QString refusal(const QPrinter& device) {
    return device.outputFormat() == QPrinter::PdfFormat
               ? QString::fromUtf8(files::kFileNotCreated)
               : QStringLiteral("l’imprimante a refusé le document");
}

} // namespace

class QtPrinter::Job {
public:
    Job(QPrinter& device, const page::FontBook& fonts) : device_(device), paper_(painter_, fonts) {}

    bool begin() { return painter_.begin(&device_); }

    bool print(const page::Sheet& sheet, const platform::Paper& paper) {
        if (sheets_++ > 0 && !device_.newPage())
            return false;
        const double perTwip = device_.resolution() / kTwipsPerInch;
        const double reduction = sheet.width > 0 ? paper.width / sheet.width : 1;
        painter_.resetTransform();
        painter_.scale(perTwip, perTwip);
        painter_.translate(-paper.left, -paper.top); // the painter's origin is the printable corner
        painter_.scale(reduction, reduction);
        paper_.draw(sheet);
        return device_.printerState() != QPrinter::Error;
    }

    bool end() { return painter_.end() && device_.printerState() != QPrinter::Error; }

private:
    QPrinter& device_;
    QPainter painter_;
    PaperPainter paper_;
    int sheets_ = 0;
};

QtPrinter::QtPrinter(const page::FontBook& fonts, PdfPrinterMaker pdf)
    : fonts_(fonts), makePdf_(pdf) {}
QtPrinter::~QtPrinter() = default;

QPrinter& QtPrinter::device() const {
    if (!device_) {
        device_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
        device_->setCreator(QStringLiteral("Orvalente"));
        device_->setPageMargins(kMargins, QPageLayout::Millimeter);
    }
    return *device_;
}

platform::Paper QtPrinter::paper() const {
    const QPageLayout layout = device().pageLayout();
    // In twips: pixels of 1440 to the inch.
    const QRect whole = layout.fullRectPixels(qRound(kTwipsPerInch));
    const QRect printable = layout.paintRectPixels(qRound(kTwipsPerInch));
    return {double(whole.width()),   double(whole.height()),    double(printable.left()),
            double(printable.top()), double(printable.width()), double(printable.height())};
}

platform::PrintTarget QtPrinter::target() const {
    if (device().outputFormat() != QPrinter::PdfFormat)
        return {{}, device().printerName()};
    const QString file = device().outputFileName();
    return {file.isEmpty() ? file : QFileInfo(file).absoluteFilePath(), {}};
}

bool QtPrinter::begin(const platform::PrintJob& job) {
    if (isBusy())
        return false;
    error_.clear();
    if (makePdf_ && device().outputFormat() == QPrinter::PdfFormat)
        pdf_ = makePdf_(device().outputFileName(), fonts_, paper());
    if (!pdf_) {
        device().setDocName(job.title);
        return beginOnDevice();
    }
    if (pdf_->begin(job))
        return true;
    error_ = pdf_->error();
    pdf_.reset();
    return false;
}

bool QtPrinter::beginOnDevice() {
    job_ = std::make_unique<Job>(device(), fonts_);
    if (job_->begin())
        return true;
    job_.reset();
    error_ = refusal(device());
    return false;
}

bool QtPrinter::print(const page::Sheet& sheet) {
    if (!isBusy() || !error_.isEmpty())
        return false;
    const bool isPrinted = pdf_ ? pdf_->print(sheet) : job_->print(sheet, paper());
    if (!isPrinted)
        error_ = interrupted();
    return isPrinted;
}

bool QtPrinter::end() {
    if (!isBusy())
        return false;
    const bool isEnded = pdf_ ? pdf_->end() : job_->end();
    if (!isEnded && pdf_)
        error_ = pdf_->error();
    if (!isEnded && error_.isEmpty())
        error_ = interrupted();
    job_.reset();
    pdf_.reset();
    return error_.isEmpty();
}

} // namespace output
