#pragma once

#include "coursetool/report.h"
#include "publish/site_list.h"

#include <QByteArray>
#include <QString>

#include <filesystem>
#include <vector>

namespace publish {

/// The folder that becomes a site. Every file but the first page has its content's hash in its
/// name: browsers may keep it for ever, and what was published before stays whole until the first
/// page, which is written last, leads to the new files.
class SiteFolder {
public:
    SiteFolder(std::filesystem::path folder, coursetool::Report& report);

    /// Makes the folder. A fault when there is one with something else in it, or it is a link.
    bool open();

    /// Writes a file and gives its name, "pages/p13-0f3a9c21.js" for the stem "pages/p13"; empty
    /// when it could not be written.
    QString add(const QString& stem, const char* ending, const QByteArray& content);
    /// The name that add() would give to this content.
    static QString nameOf(const QString& stem, const char* ending, const QByteArray& content);
    /// Whether that file is there already.
    bool has(const QString& name) const;
    /// The same for a file whose name is known.
    bool write(const QString& name, const QByteArray& content);
    /// A file that is there already; it counts as added.
    void keep(const QString& name) { names_.push_back(name); }
    std::filesystem::path pathOf(const QString& name) const;

    /// Writes the first page, then removes what this site needed formerly.
    bool finish(const QByteArray& index);

    /// What belongs to the site now, the first page included once it is there.
    const std::vector<QString>& names() const { return names_; }

private:
    bool makeFolderOf(const QString& name);

    std::filesystem::path folder_;
    coursetool::Report& report_;
    std::vector<QString> names_;
    SiteList list_;
};

/// What the first page of a site of ours has in its head.
inline constexpr char kGeneratorMark[] = "<meta name=\"generator\" content=\"orvalente-cours\">";

} // namespace publish
