#include "platform/qt/system_pdf_opener.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace platform {

namespace {

/// Whatever has taken the place of what was written, a program say, is not started.
bool isPdf(const QString& file) {
    QFile bytes(file);
    return QFileInfo(file).isFile() && bytes.open(QFile::ReadOnly) && bytes.read(5) == "%PDF-";
}

} // namespace

bool SystemPdfOpener::open(const QString& file) {
    return isPdf(file) && QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

} // namespace platform
