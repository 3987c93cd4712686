#include "common/status_record.h"

#include "common/plain_file.h"

#include <QDir>
#include <QFile>
#include <QtEndian>

#include <array>

namespace common {

namespace {

constexpr qsizetype kLengthField = 2;

/// Characters of the bytes 0x80 to 0x9F; the five bytes without one are the control characters of
/// the same code, as Windows reads them.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

QString fromWindows1252(const QByteArray& bytes) {
    QString text = QString::fromLatin1(bytes);
    for (QChar& character : text) {
        const int code = character.unicode();
        if (code >= 0x80 && code < 0xA0)
            character = kWindows1252.at(static_cast<std::size_t>(code - 0x80));
    }
    return text;
}

qint64 positionOf(int record) {
    return qint64{record - 1} * StatusRecord::kRecordLength;
}

} // namespace

bool StatusRecord::setRunning(bool running) const {
    const QByteArray bytes(running ? "\x03\0OUI" : "\x03\0NON", kLengthField + 3);
    QFile file(path());
    if (!openPlain(file, QIODevice::ReadWrite))
        return false;
    if (!file.seek(positionOf(module_)) || file.write(bytes) != bytes.size())
        return false;
    // Programs that read whole records find one.
    const qint64 end = positionOf(module_ + 1);
    return file.size() >= end || file.resize(end);
}

QString StatusRecord::exercise() const {
    const QString name = read(kExerciseRecord).trimmed();
    // What the shell writes when it starts: no exercise has been asked for yet.
    if (name == QStringLiteral("NON"))
        return {};
    // Only files beside the program are opened, whatever the record says.
    const qsizetype separator = qMax(name.lastIndexOf(u'/'), name.lastIndexOf(u'\\'));
    const QString bare = name.mid(separator + 1);
    return bare == QStringLiteral(".") || bare == QStringLiteral("..") ? QString() : bare;
}

QString StatusRecord::edition() const {
    return read(kEditionRecord).trimmed();
}

QString StatusRecord::read(int record) const {
    QFile file(path());
    if (!openPlain(file, QIODevice::ReadOnly) || !file.seek(positionOf(record)))
        return {};
    const QByteArray bytes = file.read(kRecordLength);
    if (bytes.size() < kLengthField)
        return {};
    const auto length = qFromLittleEndian<quint16>(bytes.constData());
    if (length > kRecordLength - kLengthField)
        return {};
    return fromWindows1252(bytes.mid(kLengthField, length));
}

QString StatusRecord::path() const {
    const QString handed = qEnvironmentVariable("ORVALENTE_STATUS_FILE");
    if (QDir::isAbsolutePath(handed))
        return handed;
    const QDir directory(directory_);
    const QString name = QStringLiteral("TEMPKX.TMP");
    // The filter leaves letter case aside; the exact name comes first.
    const QStringList found = directory.entryList({name}, QDir::Files);
    return directory.filePath(found.isEmpty() || found.contains(name) ? name : found.front());
}

} // namespace common
