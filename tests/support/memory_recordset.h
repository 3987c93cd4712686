#pragma once

#include "coursedata/recordset.h"

#include <QList>
#include <QMap>

#include <vector>

namespace test_support {

/// A table in memory. Field names are those of the first record.
class MemoryRecordset : public coursedata::Recordset {
public:
    using Record = QMap<QString, coursedata::FieldValue>;

    explicit MemoryRecordset(QList<Record> all) : records(std::move(all)) {}

    int recordCount() const override { return static_cast<int>(records.size()); }
    int absolutePosition() const override { return position_; }

    bool setAbsolutePosition(int position) override {
        if (isGone || position < 0 || position >= recordCount())
            return false;
        position_ = position;
        return true;
    }

    bool hasField(const QString& name) const override {
        return !records.isEmpty() && records.first().contains(name);
    }

    std::optional<coursedata::FieldValue> field(const QString& name) const override {
        if (position_ < 0 || !hasField(name) || unreadable.contains(name))
            return std::nullopt;
        return records[position_].value(name);
    }

    void forEach(const QStringList& fields,
                 const std::function<void(int, std::span<const coursedata::FieldValue>)>& visit)
        const override {
        for (int position = 0; position < recordCount(); ++position) {
            std::vector<coursedata::FieldValue> values;
            for (const QString& name : fields)
                values.push_back(records[position].value(name));
            visit(position, values);
        }
    }

    QList<Record> records;
    QStringList unreadable; ///< fields that exist but cannot be read
    bool isGone = false;    ///< no record can be read any more

private:
    int position_ = -1;
};

} // namespace test_support
