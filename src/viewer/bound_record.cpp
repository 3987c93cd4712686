#include "viewer/bound_record.h"

namespace viewer {

namespace {

void bind(const platform::Recordset& records, const QString& field, QString& text) {
    const auto value = records.field(field);
    if (value || !records.hasField(field))
        text = platform::shownText(value);
}

void bind(const platform::Recordset& records, const QString& field, bool& checked) {
    const auto value = records.field(field);
    if (value || !records.hasField(field))
        checked = platform::isChecked(value);
}

} // namespace

void BoundRecord::read(const platform::Recordset& records) {
    if (records.absolutePosition() < 0)
        return;
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

} // namespace viewer
