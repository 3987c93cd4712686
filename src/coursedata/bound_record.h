#pragma once

#include "coursedata/recordset.h"

#include <QString>

namespace coursedata {

/// The current record of the table "cours" as the controls bound to its fields hold it.
struct BoundRecord {
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

    /// Takes over the fields of the current record. A field of it that cannot be read leaves what
    /// its control held; NULL and a field that the table does not have show as empty or unchecked.
    void read(const Recordset& records);
};

} // namespace coursedata
