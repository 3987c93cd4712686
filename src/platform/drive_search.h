#pragma once

#include "platform/drives.h"

#include <QString>

#include <chrono>
#include <functional>
#include <future>
#include <map>
#include <optional>

namespace platform {

/// A file on a drive.
struct DriveFile {
    QChar letter;
    QString path; ///< can be opened
};

/// Looks for files in a folder that every drive may have at its top. Folders and files are found
/// without regard to letter case.
///
/// A drive that does not answer holds the program up once, for `patience`: each test runs on a
/// thread of its own, which is left behind when it takes longer. While it goes on, its drive counts
/// as holding nothing and is passed over at once.
class DriveSearch {
public:
    /// Path of the file `name` in `folder` of the drive at `top`; nothing when there is none. Must
    /// work without anything that may go before it returns.
    using Probe = std::function<std::optional<QString>(const QString& top, const QString& folder,
                                                       const QString& name)>;

    /// Longer than an optical drive takes to spin up, shorter than anyone waits for a program.
    static constexpr std::chrono::milliseconds kPatience{5000};

    explicit DriveSearch(const Drives& drives, Probe probe = &findInFolder,
                         std::chrono::milliseconds patience = kPatience);

    /// The file on the drive with the highest letter that has it. The search stops there.
    std::optional<DriveFile> find(const QString& folder, const QString& name);

    /// The same on one drive.
    std::optional<DriveFile> findOn(QChar letter, const QString& folder, const QString& name);

    /// The probe of real drives. `name` is a bare file name.
    static std::optional<QString> findInFolder(const QString& top, const QString& folder,
                                               const QString& name);

private:
    using Answer = std::future<std::optional<QString>>;

    std::optional<QString> ask(const QString& top, const QString& folder, const QString& name);
    bool isSilent(const QString& top);

    const Drives& drives_;
    Probe probe_;
    std::chrono::milliseconds patience_;
    std::map<QString, Answer> silent_; ///< by top directory: answers that are still to come
};

} // namespace platform
