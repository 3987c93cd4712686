#include "coursedata/recordset.h"

#include "page/numbers.h"

namespace coursedata {

std::optional<QString> Recordset::setField(const QString&, const QString&) {
    return QStringLiteral("les enregistrements sont ouverts en lecture seule");
}

bool isChecked(const std::optional<FieldValue>& value) {
    if (!value)
        return false;
    if (const bool* yes = std::get_if<bool>(&*value))
        return *yes;
    const double* number = std::get_if<double>(&*value);
    return number && *number != 0;
}

QString shownText(const std::optional<FieldValue>& value) {
    if (!value)
        return {};
    if (const QString* text = std::get_if<QString>(&*value))
        return *text;
    if (const double* number = std::get_if<double>(&*value))
        return QString::number(*number, 'g', 15);
    if (const bool* yes = std::get_if<bool>(&*value))
        return *yes ? QStringLiteral("-1") : QStringLiteral("0");
    return {};
}

double fieldNumber(const std::optional<FieldValue>& value) {
    if (!value)
        return 0;
    if (const double* number = std::get_if<double>(&*value))
        return *number;
    return page::leadingNumber(shownText(value));
}

} // namespace coursedata
