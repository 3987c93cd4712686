#include "coursedata/bound_record.h"

#include <algorithm>
#include <iterator>

namespace coursedata {

namespace {

/// False when the field cannot be read.
bool bind(const Recordset& records, const QString& field, QString& text) {
    const auto value = records.field(field);
    const bool isRead = value || !records.hasField(field);
    if (isRead)
        text = shownText(value);
    return isRead;
}

bool bind(const Recordset& records, const QString& field, bool& checked) {
    const auto value = records.field(field);
    const bool isRead = value || !records.hasField(field);
    if (isRead)
        checked = isChecked(value);
    return isRead;
}

} // namespace

void BoundRecord::bindTo(Recordset& table) {
    records_ = &table;
    moveTo(0);
}

bool BoundRecord::moveTo(int position) {
    if (!records_)
        return true;
    if (!records_->setAbsolutePosition(position))
        return position >= records_->recordCount();
    const Recordset& records = *records_;
    const bool areRead[] = {bind(records, QStringLiteral("Numeropage"), TextID),
                            bind(records, QStringLiteral("Index"), TextIndex),
                            bind(records, QStringLiteral("titre"), Textitre),
                            bind(records, QStringLiteral("precedent"), Checkpre),
                            bind(records, QStringLiteral("suite"), Checksui),
                            bind(records, QStringLiteral("imprimable"), Checkimp),
                            bind(records, QStringLiteral("moteur"), Checkmot),
                            bind(records, QStringLiteral("debutimp"), debimp),
                            bind(records, QStringLiteral("finimp"), finimp),
                            bind(records, QStringLiteral("fpc"), code)};
    return std::ranges::find(areRead, false) == std::end(areRead);
}

} // namespace coursedata
