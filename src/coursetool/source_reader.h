#pragma once

#include "coursetool/front_matter.h"
#include "coursetool/markdown_source.h"
#include "coursetool/report.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace coursetool {

/// What a source describes: each kind has a table of its own.
enum class SourceKind { Page, Test, Question };

/// Where a text of a record stands in its file.
struct TextPlace {
    int firstLine = 1;
    std::vector<int> markdownLines; ///< for each line of what was compiled; empty when nothing was

    /// The line of the file behind a line of the text, both from 1. Lines beyond the last of what
    /// was compiled give that of the last; those before the first, the first line of all.
    int lineOf(int line) const;
};

/// The record that one source gives.
struct ReadSource {
    std::string file;
    Fields fields; ///< a value for each column of the table
    Place place;   ///< of the number that names the record; of the file's start without one
    std::string frontMatter;
    int frontMatterLine = 1;
    TextPlace text;                                   ///< of the page or question
    TextPlace comment;                                ///< on a wrong answer
    std::vector<authoring::Description> descriptions; ///< of pictures
};

/// Reads the sources of a course, one at a time.
class SourceReader {
public:
    virtual ~SourceReader() = default;
    /// Null when the file gives no record. Every fault is reported, also of those that give one.
    virtual std::shared_ptr<const ReadSource>
    read(SourceKind kind, const std::filesystem::path& file, Report& report) = 0;
};

/// Reads what stands in the files.
class PlainSourceReader : public SourceReader {
public:
    /// `compiler` is asked for when a source is in Markdown; without it such a source is a fault.
    explicit PlainSourceReader(CompilerSource compiler) : compilerSource_(std::move(compiler)) {}

    std::shared_ptr<const ReadSource> read(SourceKind kind, const std::filesystem::path& file,
                                           Report& report) override;
    /// The same for a file whose bytes are known.
    std::shared_ptr<const ReadSource> readText(SourceKind kind, const std::filesystem::path& file,
                                               std::string_view bytes, Report& report);

private:
    /// The compiler of Markdown; null, and a fault, without one.
    const authoring::Compiler* compilerFor(const std::filesystem::path& file, Report& report);

    CompilerSource compilerSource_;
    const authoring::Compiler* compiler_ = nullptr;
    bool askedForCompiler_ = false;
};

/// Keeps what it has read for who reads the same course next, and lets go of it then.
class TwiceReadSources : public SourceReader {
public:
    explicit TwiceReadSources(SourceReader& reader) : reader_(reader) {}

    std::shared_ptr<const ReadSource> read(SourceKind kind, const std::filesystem::path& file,
                                           Report& report) override;

private:
    SourceReader& reader_;
    std::unordered_map<std::string, std::shared_ptr<const ReadSource>> kept_; ///< without remarks
};

} // namespace coursetool
