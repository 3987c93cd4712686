#pragma once

#include "coursetool/file_list.h"
#include "coursetool/key_places.h"
#include "coursetool/picture_descriptions.h"
#include "coursetool/report.h"
#include "coursetool/source_reader.h"

#include <filesystem>
#include <memory>

namespace coursetool {

/// Takes the records of a course, those of each kind in their order.
class RecordSink {
public:
    virtual ~RecordSink() = default;
    virtual void take(SourceKind kind, const std::shared_ptr<const ReadSource>& record) = 0;
};

/// The sources of a course from one end to the other: hands on the records, lists the files, and
/// reports what is wrong with them as a whole.
class CourseSources {
public:
    CourseSources(std::filesystem::path folder, SourceReader& reader, RecordSink& records,
                  Report& report);

    void readPages();
    void readTests();
    /// Looks for names that clash.
    void listFiles();

    const FileTree& files() const { return files_; }
    const FileTree& disc() const { return disc_; }
    /// What pictures show: the course's file of them is made of the author's, which is among
    /// files(), and of what pages and questions say.
    const PictureDescriptions& descriptions() const { return descriptions_; }

private:
    void readPage(const std::filesystem::path& file);
    void readTest(const std::filesystem::path& folder);
    void readChapter(const std::filesystem::path& file);
    void readQuestion(const std::filesystem::path& file);
    void warnAboutNumber(const Fields& fields);
    void checkNames(const std::filesystem::path& root, const FileTree& tree,
                    const NameTable& reserved);

    std::filesystem::path folder_;
    SourceReader& reader_;
    RecordSink& records_;
    Report& report_;
    KeyPlaces pageNumbers_;
    KeyPlaces chapters_;
    KeyPlaces references_;
    PictureDescriptions descriptions_;
    int pages_ = 0;
    int numberWarnings_ = 0;
    FileTree files_;
    FileTree disc_;
};

} // namespace coursetool
