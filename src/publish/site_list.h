#pragma once

#include "coursetool/report.h"

#include <QString>

#include <filesystem>
#include <fstream>
#include <map>
#include <vector>

namespace publish {

/// What publishing has put into a folder, as the folder itself keeps it: so that what is needed no
/// more can be removed when the course is published again, and never anything else. A name stands
/// in the list before there is such a file; wherever the program ends, nothing of it is forgotten.
///
/// Of the edition before, files stay until the next one: who has the site open turns its pages, and
/// copies of its first page are kept here and there.
class SiteList {
public:
    /// The list's own name in the folder.
    static constexpr char kName[] = "fichiers-publies.txt";

    /// Whether a folder has such a list.
    static bool isIn(const std::filesystem::path& folder);

    SiteList(std::filesystem::path folder, coursetool::Report& report);

    /// Reads it. Lines that name no file of ours are passed over.
    void open();
    /// To be told before a file is written. False, and a failure, when the list cannot be written.
    bool begin(const QString& name);
    /// When the first page leads to these: removes what neither they nor the edition before needs.
    void finish(const std::vector<QString>& names);

private:
    enum class State { Begun, Current, Former };

    bool write();
    bool remove(const QString& name) const;

    std::filesystem::path folder_;
    std::filesystem::path path_;
    coursetool::Report& report_;
    std::map<QString, State> files_;
    std::ofstream begun_; ///< open once there is something to add
};

} // namespace publish
