#pragma once

#include "support/files.h"

#include <QByteArray>
#include <QString>

#include <sys/stat.h>
#include <unistd.h>

/// The status file as another program sees it. Shares no line with ours on purpose.
namespace raw_status_file {

inline const QString kName = QStringLiteral("TEMPKX.TMP");

/// Bytes of a record: length, low byte first, and characters.
inline QByteArray counted(const QByteArray& characters) {
    QByteArray bytes(2, '\0');
    bytes[0] = static_cast<char>(characters.size() % 256);
    bytes[1] = static_cast<char>(characters.size() / 256);
    return bytes + characters;
}

/// A whole record, its rest filled with `rest`.
inline QByteArray record(const QByteArray& characters, char rest = '\0') {
    return counted(characters).leftJustified(128, rest);
}

inline QByteArray all(const QString& directory) {
    return test_support::readFile(directory + u'/' + kName);
}

/// Characters of record `number`, from 1.
inline QByteArray characters(const QString& directory, int number) {
    const QByteArray bytes = all(directory).mid((number - 1) * 128, 128);
    return bytes.size() < 2 ? QByteArray()
                            : bytes.mid(2, static_cast<unsigned char>(bytes[0]) +
                                               256 * static_cast<unsigned char>(bytes[1]));
}

/// A file whose 33 records all say "NON".
inline void writeAllNon(const QString& directory) {
    test_support::writeFile(directory + u'/' + kName, record("NON").repeated(33));
}

/// Replaces record `number` of a file that has it.
inline void put(const QString& directory, int number, const QByteArray& text) {
    QByteArray bytes = all(directory);
    ASSERT_GE(bytes.size(), number * 128);
    test_support::writeFile(directory + u'/' + kName,
                            bytes.replace((number - 1) * 128, 128, record(text)));
}

/// Makes the file one that whoever runs the tests may not write: root, whom permissions do not
/// bind, is given one of another person's.
inline void protect(const QString& directory) {
    const QByteArray path = (directory + u'/' + kName).toLocal8Bit();
    ASSERT_EQ(chmod(path.constData(), 0444), 0);
    if (geteuid() == 0) {
        ASSERT_EQ(chown(path.constData(), 65534, 65534), 0);
    }
}

} // namespace raw_status_file
