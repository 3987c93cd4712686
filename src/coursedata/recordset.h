#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <span>
#include <variant>

namespace coursedata {

/// What a field holds: NULL, yes or no, a number, or text. Other kinds of column (dates, binary
/// values) show as NULL: no form binds them.
using FieldValue = std::variant<std::monostate, bool, double, QString>;

/// The records of one table, in their stored order, one of them current.
class Recordset {
public:
    virtual ~Recordset() = default;

    virtual int recordCount() const = 0;

    /// Position of the current record, from 0; -1 when there is none.
    virtual int absolutePosition() const = 0;

    /// Makes a record current; false, and no change, when there is none at `position`.
    virtual bool setAbsolutePosition(int position) = 0;

    virtual bool hasField(const QString& name) const = 0;

    /// Field of the current record, its name taken without regard to case; nothing when the table
    /// has no such field, no record is current, or the value cannot be read.
    virtual std::optional<FieldValue> field(const QString& name) const = 0;

    /// Gives a text field of the current record another text, in the stored table. Nothing when
    /// that is done; otherwise why it is not, in French and without a final full stop, and the
    /// stored record is as it was. Records are read-only unless they were opened for writing.
    virtual std::optional<QString> setField(const QString& name, const QString& text);

    /// Hands the named fields of every record to `visit`, in record order, without reading any
    /// other field. A missing field, and one that cannot be read, is NULL.
    virtual void
    forEach(const QStringList& fields,
            const std::function<void(int position, std::span<const FieldValue>)>& visit) const = 0;
};

/// A yes/no field as a check box shows it: NULL, text and a missing field are unchecked.
bool isChecked(const std::optional<FieldValue>& value);

/// A field as a text box shows it; empty for NULL and a missing field.
QString shownText(const std::optional<FieldValue>& value);

/// The field's leading number; 0 for NULL, a missing field, or a text without one.
double fieldNumber(const std::optional<FieldValue>& value);

} // namespace coursedata
