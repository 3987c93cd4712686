#include "look/print_setup.h"

#include "look/dress.h"
#include "look/no_settings.h"
#include "look/print_setup_dialog.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <QTranslator>

namespace look {

namespace {

constexpr char16_t kFileName[] = u"Orvalente.pdf";

/// The dialogs that come with the toolkit speak English by themselves.
void loadFrenchTexts() {
    auto* texts = new QTranslator(qApp);
    if (texts->load(QStringLiteral("qtbase_fr"),
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(texts);
}

platform::PrinterSetup::Outcome answerOf(QDialog& dialog) {
    // A dialog that nobody closed ended with the program; it would come back for ever.
    bool isAnswered = false;
    QObject::connect(&dialog, &QDialog::finished, [&isAnswered] { isAnswered = true; });
    if (dialog.exec() == QDialog::Accepted)
        return platform::PrinterSetup::Outcome::Confirmed;
    return isAnswered ? platform::PrinterSetup::Outcome::Cancelled
                      : platform::PrinterSetup::Outcome::Gone;
}

QString usualFile() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QDir directory(QFileInfo(documents).isDir() ? documents : QDir::homePath());
    return directory.filePath(QString::fromUtf16(kFileName));
}

/// The print dialog takes a folder for the name of a file.
void nameFile(QPrinter& device) {
    if (device.outputFormat() == QPrinter::PdfFormat && QFileInfo(device.outputFileName()).isDir())
        device.setOutputFileName(
            QDir(device.outputFileName()).filePath(QString::fromUtf16(kFileName)));
}

} // namespace

platform::PrinterSetup::Outcome QtPrinterSetup::ask() {
    if (printer_.isBusy()) {
        messageBoxes_.ask(
            {QStringLiteral("Imprimer"),
             QStringLiteral("Une impression est en cours\u00A0: attendez qu’elle soit "
                            "terminée, ou arrêtez-la."),
             platform::Message::Icon::Exclamation, platform::Message::Buttons::Ok});
        return Outcome::Busy;
    }
    if (!speaksFrench_)
        loadFrenchTexts();
    speaksFrench_ = true;
    return QPrinterInfo::availablePrinterNames().isEmpty() ? askForFile() : askForPrinter();
}

platform::PrinterSetup::Outcome QtPrinterSetup::askForPrinter() {
    QPrinter& device = printer_.device();
    device.setDocName(QStringLiteral("Orvalente"));
    keepNoSettings();
    QPrintDialog dialog(&device, QApplication::activeWindow());
    dialog.setWindowTitle(QStringLiteral("Imprimer"));
    // The course says which pages belong together.
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize |
                      QAbstractPrintDialog::PrintCollateCopies);
    dress(dialog);
    const Outcome outcome = answerOf(dialog);
    nameFile(device);
    return outcome;
}

platform::PrinterSetup::Outcome QtPrinterSetup::askForFile() {
    QPrinter& device = printer_.device();
    device.setOutputFormat(QPrinter::PdfFormat);
    const QString file = device.outputFileName().isEmpty() ? usualFile() : device.outputFileName();
    PrintSetupDialog dialog({device.pageLayout(), file}, messageBoxes_,
                            QApplication::activeWindow());
    const Outcome outcome = answerOf(dialog);
    if (outcome == Outcome::Confirmed) {
        device.setPageLayout(dialog.settings().layout);
        device.setOutputFileName(dialog.settings().file);
    }
    return outcome;
}

} // namespace look
