#include "platform/drive_search.h"

#include "platform/file_names.h"

#include <system_error>
#include <thread>

namespace platform {

DriveSearch::DriveSearch(const Drives& drives, Probe probe, std::chrono::milliseconds patience)
    : drives_(drives), probe_(std::move(probe)), patience_(patience) {}

std::optional<DriveFile> DriveSearch::find(const QString& folder, const QString& name) {
    const auto drives = drives_.letters();
    for (auto drive = drives.rbegin(); drive != drives.rend(); ++drive)
        if (const auto path = ask(drive->second, folder, name))
            return DriveFile{drive->first, *path};
    return std::nullopt;
}

std::optional<DriveFile> DriveSearch::findOn(QChar letter, const QString& folder,
                                             const QString& name) {
    const auto drives = drives_.letters();
    const auto drive = drives.find(letter);
    if (drive == drives.end())
        return std::nullopt;
    if (const auto path = ask(drive->second, folder, name))
        return DriveFile{letter, *path};
    return std::nullopt;
}

std::optional<QString> DriveSearch::findInFolder(const QString& top, const QString& folder,
                                                 const QString& name) {
    const auto directory = findFolderWithoutCase(top, folder);
    return directory ? findWithoutCase(*directory, name, top) : std::nullopt;
}

std::optional<QString> DriveSearch::ask(const QString& top, const QString& folder,
                                        const QString& name) {
    if (isSilent(top))
        return std::nullopt;
    std::packaged_task<std::optional<QString>()> task(
        [probe = probe_, top, folder, name] { return probe(top, folder, name); });
    Answer answer = task.get_future();
    try {
        std::thread(std::move(task)).detach();
    } catch (const std::system_error&) {
        return std::nullopt; // no more threads: the drive counts as one that cannot be read
    }
    if (answer.wait_for(patience_) == std::future_status::ready)
        return answer.get();
    silent_.insert_or_assign(top, std::move(answer));
    return std::nullopt;
}

bool DriveSearch::isSilent(const QString& top) {
    const auto entry = silent_.find(top);
    if (entry == silent_.end())
        return false;
    if (entry->second.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
        return true;
    silent_.erase(entry);
    return false;
}

} // namespace platform
