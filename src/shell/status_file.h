#pragma once

#include <QString>
#include <QStringList>

#include <vector>

class QFile;

namespace shell {

/// The file that the shell and its sibling programs share: records of a fixed length, numbered
/// from 1, each a 16-bit little-endian length and as many Windows-1252 bytes; the rest of a record
/// has no meaning. There is no lock. The file is opened for each call and closed at its end, and
/// made, empty, when it does not exist (also by a read, where the directory can be written) unless
/// the one who asks wants none. What
/// is no plain file (a link, a pipe) is neither read nor written, nor is anything made through it.
///
/// Nothing here throws. Damage is read as follows: beyond the file's end, and where a length says
/// more than a record can hold, the text is empty; of a record cut short, the bytes that are there
/// count.
class StatusFile {
public:
    static constexpr int kModuleRecords = 30; ///< records 1 to 30: "OUI" while the module runs
    static constexpr int kArgumentRecord = 31;
    static constexpr int kEditionRecord = 32;
    static constexpr int kInstallationRecord = 33; ///< never written here; the last one

    static constexpr int kRecordLength = 128;              ///< bytes
    static constexpr int kLongestText = kRecordLength - 2; ///< bytes

    /// What becomes of a file that is not there.
    enum class Missing {
        IsMade,
        StaysAway, ///< for a sibling program: where no file is, no shell would ask
    };

    /// `path`: SharedState::StatusFilePath.
    explicit StatusFile(const QString& path, Missing missing = Missing::IsMade)
        : path_(path), missing_(missing) {}

    /// The texts of `records`, read in this order while the file is open once.
    QStringList read(const std::vector<int>& records) const;
    QString read(int record) const { return read(std::vector<int>{record}).front(); }

    /// Writes `texts` into consecutive records from `first` on. A record's bytes behind its text
    /// stay as they are; a last record that is new or cut short is filled up with zeros, so that
    /// programs which read whole records find one. False when a text does not fit (nothing is
    /// written then), a record is none of 1 to kInstallationRecord, or the file cannot be written.
    bool write(int first, const QStringList& texts) const;
    bool write(int record, const QString& text) const { return write(record, QStringList{text}); }

private:
    bool openForWriting(QFile& file) const;

    QString path_;
    Missing missing_;
};

} // namespace shell
