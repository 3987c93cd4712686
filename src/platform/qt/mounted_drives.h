#pragma once

#include "platform/drives.h"

#include <QByteArray>
#include <QStringList>

namespace platform {

/// Gives the mounted `volumes`, in their order, the letters from "D" that `taken` leaves free; what
/// goes beyond "Z" gets none. The result holds `taken` as well.
std::map<QChar, QString> lettersFor(const QStringList& volumes, std::map<QChar, QString> taken);

/// The volumes of devices in a mount table (fstab(5): device, directory, type and more, a line
/// each), in its order. Systems mount much that no device is behind; of what a network or another
/// program serves nothing is touched, since it might not answer.
QStringList volumesIn(const QByteArray& mountTable);

/// The system's drives. On Windows they have their own letters; elsewhere the mounted volumes get
/// letters in mount order. `mappings` go before both, and the course's folder "disc" is the drive
/// "C" where there is no other.
class MountedDrives : public Drives {
public:
    /// Without a course (an empty directory) there is no folder "disc".
    explicit MountedDrives(const QString& courseDirectory, std::map<QChar, QString> mappings = {});

    std::map<QChar, QString> letters() const override;

private:
    QString discDirectory_;
    std::map<QChar, QString> mappings_;
};

} // namespace platform
