#pragma once

#include "coursedata/data_directories.h"
#include "platform/beeper.h"
#include "platform/drive_search.h"
#include "platform/message_box.h"

#include <QString>

#include <optional>

namespace coursedata {

/// Where the files of pages are: pictures in the installation directory or in ":\ZEKXDATA\" of a
/// drive, videos in ":\ZEKXV\". Of several drives that hold a file, the one with the highest letter
/// counts.
///
/// A name is reduced to its last component first, so that a page reaches no other directory. Where
/// nothing is left of it, or only the name of a directory, it is a file that no drive has.
class DataLocation {
public:
    DataLocation(DataDirectories& directories, const platform::Drives& drives,
                 platform::MessageBoxes& messageBoxes, platform::Beeper& beeper)
        : directories_(directories), drives_(drives), messageBoxes_(messageBoxes), beeper_(beeper) {
    }

    /// The path of a picture, which can be opened; the disc is asked for as long as it takes. Empty
    /// when the person gave up. A name of blanks alone comes back as it is.
    ///
    /// A picture found on a drive leaves letter and directory in DataDirectories::PictureDataDir,
    /// as text ("E:\ZEKXDATA\") on every system. The path has the directory that stands for the
    /// letter instead, which is the same place where letters are the system's own.
    QString locatePicture(const QString& name);

    /// The same for a video, on the drives only; leaves DataDirectories::VideoDataDir.
    QString locateVideo(const QString& name);

    /// The path of a file in the installation directory; nothing when it has none of that name.
    std::optional<QString> findInstalled(const QString& fileName) const;

    /// The path of a video in DataDirectories::VideoDataDir, where the last one was found. Nothing
    /// is asked.
    std::optional<QString> findBesideLastVideo(const QString& name);

private:
    QString searchDrives(const QString& folder, const QString& fileName, QString& dataDir);
    bool wantsToRetry();

    DataDirectories& directories_;
    platform::DriveSearch drives_;
    platform::MessageBoxes& messageBoxes_;
    platform::Beeper& beeper_;
};

} // namespace coursedata
