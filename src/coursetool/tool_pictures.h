#pragma once

#include "coursedata/course_pictures.h"
#include "coursedata/data_location.h"
#include "coursetool/report.h"
#include "platform/qt/mounted_drives.h"

#include <QSet>

#include <filesystem>
#include <map>

namespace coursetool {

/// The pictures of a course, for work that nobody waits beside: a disc that is missing is not asked
/// for. Each missing picture is told once, as a warning.
class ToolPictures : public markup::PictureSource {
public:
    /// Without a course (`course` empty) there are the symbols and what the drives hold. `drives`
    /// are directories by letter, in upper case.
    ToolPictures(const std::filesystem::path& course,
                 const std::map<char, std::filesystem::path>& drives, Report& report);

    QString locatePicture(const QString& name) override;
    std::shared_ptr<const page::Picture> load(const QString& path) override;
    std::shared_ptr<const page::Picture> symbol(const QString& key) override;

private:
    /// Nobody is there to answer, and nobody hears a beep.
    struct Absent : platform::MessageBoxes, platform::Beeper {
        platform::Answer ask(const platform::Message&) override { return platform::Answer::Cancel; }
        void beep() override {}
    };

    void warnOnce(const QString& subject, const std::string& sentence);

    std::string place_;
    Report& report_;
    QSet<QString> told_;
    coursedata::DataDirectories directories_;
    platform::MountedDrives drives_;
    Absent nobody_;
    coursedata::DataLocation location_;
    coursedata::ImageList symbols_;
    coursedata::CoursePictures pictures_;
};

} // namespace coursetool
