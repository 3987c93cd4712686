#include "coursedata/bound_record.h"

namespace coursedata {

namespace {

void bind(const Recordset& records, const QString& field, QString& text) {
    const auto value = records.field(field);
    if (value || !records.hasField(field))
        text = shownText(value);
}

void bind(const Recordset& records, const QString& field, bool& checked) {
    const auto value = records.field(field);
    if (value || !records.hasField(field))
        checked = isChecked(value);
}

} // namespace

void BoundRecord::bindTo(Recordset& table) {
    records_ = &table;
    moveTo(0);
}

void BoundRecord::moveTo(int position) {
    if (!records_ || !records_->setAbsolutePosition(position))
        return;
    const Recordset& records = *records_;
    bind(records, QStringLiteral("Numeropage"), TextID);
    bind(records, QStringLiteral("Index"), TextIndex);
    bind(records, QStringLiteral("titre"), Textitre);
    bind(records, QStringLiteral("precedent"), Checkpre);
    bind(records, QStringLiteral("suite"), Checksui);
    bind(records, QStringLiteral("imprimable"), Checkimp);
    bind(records, QStringLiteral("moteur"), Checkmot);
    bind(records, QStringLiteral("debutimp"), debimp);
    bind(records, QStringLiteral("finimp"), finimp);
    bind(records, QStringLiteral("fpc"), code);
}

} // namespace coursedata
