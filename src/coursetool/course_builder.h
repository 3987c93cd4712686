#pragma once

#include "coursetool/file_list.h"
#include "coursetool/front_matter.h"
#include "coursetool/markdown_source.h"
#include "coursetool/picture_descriptions.h"
#include "coursetool/report.h"
#include "coursetool/source_parts.h"
#include "coursetool/staged_course.h"
#include "coursetool/table_target.h"

#include <filesystem>
#include <string>
#include <vector>

namespace coursetool {

/// The steps of a build, in the order in which they are called.
class CourseBuilder {
public:
    CourseBuilder(const std::filesystem::path& source, StagedCourse& course,
                  const std::filesystem::path& output, const CompilerSource& compiler,
                  Report& report);

    void compilePages();
    void compileExercises();
    /// Looks for names that clash, before anything is copied.
    void checkFiles();
    void copyFiles();
    void finishDatabases();

private:
    void compilePage(const std::filesystem::path& file);
    void appendPage(Fields fields, const Place& place);
    /// The compiler of Markdown; null, and a fault, without one.
    const authoring::Compiler* compilerFor(const std::filesystem::path& file);
    void compileMarkdownPage(const std::filesystem::path& file);
    void compileMarkdownQuestion(const std::filesystem::path& file);
    void compileTest(const std::filesystem::path& folder);
    void compileChapter(const std::filesystem::path& file);
    void compileQuestion(const std::filesystem::path& file);
    void warnAboutNumber(const Fields& fields);
    void checkNames(const std::filesystem::path& root, const FileTree& tree,
                    const NameTable& reserved);
    void copyTree(const std::filesystem::path& from, const FileTree& tree,
                  const std::filesystem::path& to);
    void writeDescriptions();

    std::filesystem::path source_;
    std::filesystem::path output_;
    StagedCourse& course_;
    CompilerSource compiler_;
    const authoring::Compiler* markdown_ = nullptr;
    bool askedForCompiler_ = false;
    Report& report_;
    DatabaseTarget courseDatabase_;
    DatabaseTarget exerciseDatabase_;
    TableTarget cours_;
    TableTarget description_;
    TableTarget contenu_;
    KeyPlaces pageNumbers_;
    KeyPlaces chapters_;
    KeyPlaces references_;
    PictureDescriptions descriptions_;
    int numberWarnings_ = 0;
    FileTree files_;
    FileTree disc_;
};

} // namespace coursetool
