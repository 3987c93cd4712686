#pragma once

#include "support/memory_recordset.h"
#include "support/printing.h"

namespace test_support {

/// A record of the table "cours". Its place in the order is its number unless told otherwise.
inline test_support::MemoryRecordset::Record page(int number, const QString& source = {}) {
    return {{QStringLiteral("Numeropage"), double(number)},
            {QStringLiteral("Index"), double(number)},
            {QStringLiteral("titre"), QStringLiteral("Page %1").arg(number)},
            {QStringLiteral("precedent"), false},
            {QStringLiteral("suite"), false},
            {QStringLiteral("imprimable"), false},
            {QStringLiteral("moteur"), true},
            {QStringLiteral("debutimp"), double(number)},
            {QStringLiteral("finimp"), double(number)},
            {QStringLiteral("sommaire"), 1.0},
            {QStringLiteral("fpc"), source}};
}

/// The same with some fields changed.
inline test_support::MemoryRecordset::Record
page(int number, const QString& source, const QMap<QString, coursedata::FieldValue>& changes) {
    auto record = page(number, source);
    record.insert(changes);
    return record;
}

/// Pages 1 to `count`, in order.
inline QList<test_support::MemoryRecordset::Record> pages(int count) {
    QList<test_support::MemoryRecordset::Record> all;
    for (int number = 1; number <= count; ++number)
        all.append(page(number));
    return all;
}

} // namespace test_support
