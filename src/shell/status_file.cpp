#include "shell/status_file.h"

#include "platform/plain_file.h"
#include "shell/windows_1252.h"

#include <QFile>
#include <QtEndian>

#include <algorithm>

namespace shell {

namespace {

using platform::PlainAccess;

constexpr qsizetype kLengthField = 2;

qint64 positionOf(int record) {
    return qint64{record - 1} * StatusFile::kRecordLength;
}

QString textOf(const QByteArray& record) {
    if (record.size() < kLengthField)
        return {};
    const auto length = qFromLittleEndian<quint16>(record.constData());
    // Such a length was not written by a program of this family, nor then the bytes behind it.
    if (length > StatusFile::kLongestText)
        return {};
    return fromWindows1252(record.mid(kLengthField, length));
}

QByteArray bytesOf(const QString& text) {
    const QByteArray characters = toWindows1252(text);
    QByteArray bytes(kLengthField, '\0');
    qToLittleEndian(static_cast<quint16>(characters.size()), bytes.data());
    return bytes + characters;
}

bool fits(const QString& text) {
    return text.size() <= StatusFile::kLongestText;
}

bool writeRecord(QFile& file, int record, const QString& text) {
    const QByteArray bytes = bytesOf(text);
    return file.seek(positionOf(record)) && file.write(bytes) == bytes.size();
}

bool fillUp(QFile& file, int lastRecord) {
    const qint64 end = positionOf(lastRecord + 1);
    return file.size() >= end || file.resize(end);
}

} // namespace

bool StatusFile::openForWriting(QFile& file) const {
    return platform::openPlainFile(file, missing_ == Missing::IsMade
                                             ? PlainAccess::ReadWrite
                                             : PlainAccess::ReadWriteExisting);
}

QStringList StatusFile::read(const std::vector<int>& records) const {
    QStringList texts;
    QFile file(path_);
    // Opening for both makes a missing file. In a directory that cannot be written, what is there
    // can still be read.
    const bool open = openForWriting(file) || platform::openPlainFile(file, PlainAccess::Read);
    for (const int record : records) {
        const bool there = open && record >= 1 && file.seek(positionOf(record));
        texts.append(there ? textOf(file.read(kRecordLength)) : QString());
    }
    return texts;
}

bool StatusFile::write(int first, const QStringList& texts) const {
    const qsizetype last = first + texts.size() - 1;
    if (first < 1 || last > kInstallationRecord || !std::all_of(texts.begin(), texts.end(), fits))
        return false;

    QFile file(path_);
    if (!openForWriting(file))
        return false;
    int record = first;
    for (const QString& text : texts) {
        if (!writeRecord(file, record, text))
            return false;
        ++record;
    }
    return fillUp(file, record - 1);
}

} // namespace shell
