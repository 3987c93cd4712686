#pragma once

#include <QByteArray>
#include <QString>

namespace shell {

/// Text in Windows-1252, the single-byte characters of the status file. The five codes that the
/// code page leaves open (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the control characters of the
/// same number, as on Windows; a character without a code becomes "?".
QString fromWindows1252(const QByteArray& bytes);
QByteArray toWindows1252(const QString& text);

} // namespace shell
