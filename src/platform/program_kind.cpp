#include "platform/program_kind.h"

#include <QByteArray>
#include <QFile>
#include <QtEndian>

namespace platform {

namespace {

constexpr qsizetype kDosHeaderLength = 64;
constexpr qsizetype kSecondHeaderField = 0x3C;

/// A file that begins with "MZ": `header` is its beginning.
ProgramKind kindBehindDosHeader(QFile& file, const QByteArray& header) {
    if (header.size() < kDosHeaderLength)
        return ProgramKind::SixteenBit;
    const auto offset = qFromLittleEndian<quint32>(header.constData() + kSecondHeaderField);
    if (!file.seek(offset))
        return ProgramKind::SixteenBit;
    return file.read(4) == QByteArray("PE\0\0", 4) ? ProgramKind::Windows : ProgramKind::SixteenBit;
}

} // namespace

ProgramKind programKind(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return ProgramKind::Unknown;
    const QByteArray header = file.read(kDosHeaderLength);
    if (header.startsWith("\x7f"
                          "ELF"))
        return ProgramKind::Elf;
    if (header.startsWith("#!"))
        return ProgramKind::Script;
    if (header.startsWith("MZ"))
        return kindBehindDosHeader(file, header);
    return ProgramKind::Unknown;
}

} // namespace platform
