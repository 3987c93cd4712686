#pragma once

#include "coursetool/report.h"
#include "coursetool/table_source.h"

#include <filesystem>
#include <string>

namespace coursetool {

/// Writes records as sources, and reports what a source cannot carry.
class SourceWriter {
public:
    explicit SourceWriter(Report& report) : report_(report) {}

    void writePage(const SourceRecord& record, const std::filesystem::path& file);
    void writeChapter(const SourceRecord& record, const std::filesystem::path& file);
    void writeQuestion(const SourceRecord& record, const std::filesystem::path& file);
    void writeFile(const std::string& text, const std::filesystem::path& file);

private:
    std::string frontMatter(const SourceRecord& record, const TableRule& rule);
    /// Fields between fences; the closing one has no line end yet.
    std::string fencedFrontMatter(const SourceRecord& record, const TableRule& rule);
    /// A Memo field with the line ends of a source; nothing for NULL.
    std::optional<std::string> body(const SourceRecord& record, const FieldRule& field,
                                    const jet::Value& value);
    void tell(const SourceRecord& record, const FieldRule& field, const std::string& sentence);

    Report& report_;
};

} // namespace coursetool
