#pragma once

#include "coursedata/databases.h"
#include "jet/column.h"

#include <span>
#include <string_view>
#include <vector>

namespace coursetool {

// The tables of a course as the tool reads and writes them: names and types of their columns, in
// the order in which they are written.

using coursedata::kCourseFile;
using coursedata::kExerciseFile;

/// Folder of the disc directories, in the sources as in the course.
inline constexpr char kDiscFolder[] = "disc";
inline constexpr char kFilesFolder[] = "files";
inline constexpr char kPagesFolder[] = "pages";
inline constexpr char kExercisesFolder[] = "exercises";
inline constexpr char kPageEnding[] = ".page";
inline constexpr char kQuestionEnding[] = ".question";
inline constexpr char kChapterFile[] = "chapter.toml";

/// Longest value of a Text column, in UTF-16 units.
inline constexpr int kMaxTextLength = 255;

struct FieldRule {
    std::string_view name;
    jet::ColumnType type;
    /// Nothing leads to a record without it, so a source must give it.
    bool required = false;
    /// A value to show to somebody who left it out, as it is written in a source.
    std::string_view example;
};

struct TableRule {
    std::string_view name;
    std::span<const FieldRule> fields;
};

const TableRule& coursTable();       ///< "cours", one record a page
const TableRule& descriptionTable(); ///< "DESCRIPTION", one record a test
const TableRule& contenuTable();     ///< "Contenu", one record a question

/// The fields that a front matter gives: all but the Memo ones, which stand at the table's end.
std::span<const FieldRule> frontMatterFields(const TableRule& table);

std::vector<jet::Column> columnsOf(const TableRule& table);

} // namespace coursetool
