#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QString>
#include <QThread>

#include <gtest/gtest.h>

namespace test_support {

inline void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path);
    ASSERT_EQ(file.write(bytes), bytes.size());
}

/// A file that may be executed.
inline void writeProgram(const QString& path, const QByteArray& bytes) {
    writeFile(path, bytes);
    ASSERT_TRUE(QFile(path).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

/// The whole file; empty when there is none.
inline QByteArray readFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Waits, with window messages handled, until `condition` holds. False when it still does not
/// after a time that no sound machine needs.
template <class Condition>
bool eventually(Condition condition) {
    for (const QDeadlineTimer deadline(30'000); !deadline.hasExpired(); QThread::msleep(20)) {
        if (condition())
            return true;
        QCoreApplication::processEvents();
    }
    return condition();
}

} // namespace test_support
