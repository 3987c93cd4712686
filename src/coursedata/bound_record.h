#pragma once

#include "coursedata/recordset.h"

#include <QString>

namespace coursedata {

/// The current record of the table "cours", and its fields as the controls bound to them hold them.
class BoundRecord {
public:
    QString TextID;        ///< "Numeropage": fixed page number
    QString TextIndex;     ///< "Index": place in the reading order
    QString Textitre;      ///< "titre"
    bool Checkpre = false; ///< "precedent": has a previous page in its chapter
    bool Checksui = false; ///< "suite": has a next page in its chapter
    bool Checkimp = false; ///< "imprimable"
    bool Checkmot = false; ///< "moteur": takes part in the search
    QString debimp;        ///< "debutimp"
    QString finimp;        ///< "finimp"
    QString code;          ///< "fpc": the page source

    /// The table, once it is open; its first record becomes current. Without it (the database could
    /// not be opened) all fields stay empty.
    void bindTo(Recordset& records);
    /// Null before bindTo().
    const Recordset* records() const { return records_; }

    /// Position of the current record, from 0; -1 when there is none.
    int position() const { return records_ ? records_->absolutePosition() : -1; }
    /// Moves to the record at `position` and takes over its fields; no change when there is none. A
    /// field of it that cannot be read leaves what its control held; NULL and a field that the
    /// table does not have show as empty or unchecked. False when the table has the record and it,
    /// or one of its fields, cannot be read: the file is damaged, or its disc or share has gone.
    bool moveTo(int position);

private:
    Recordset* records_ = nullptr;
};

} // namespace coursedata
