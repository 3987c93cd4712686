#pragma once

#include "coursetool/source_reader.h"
#include "files/file_stamp.h"

#include <map>
#include <optional>
#include <string>

namespace preview {

/// Reads and compiles a source once: as long as it stands as it stood, it gives the same record
/// again, the very same one, and says of it what it said. Whether it does is told by its stamp; by
/// what it holds where that is in doubt.
class RememberedSources : public coursetool::SourceReader {
public:
    /// `compiler` must outlive it.
    explicit RememberedSources(const authoring::Compiler& compiler)
        : reader_([&compiler] { return &compiler; }) {}

    std::shared_ptr<const coursetool::ReadSource> read(coursetool::SourceKind kind,
                                                       const std::filesystem::path& file,
                                                       coursetool::Report& report) override;

    /// Forgets what nobody has asked for since the last call.
    void forgetUnused();
    /// How many texts it had to make a record of so far.
    int compiled() const { return compiled_; }

private:
    struct Kept {
        std::optional<files::FileStamp> stamp; ///< nothing when it says nothing
        std::optional<std::string> bytes;      ///< nothing when they could not be read
        std::shared_ptr<const coursetool::ReadSource> record;
        std::vector<coursetool::Remark> remarks;
        bool used = true;
    };

    void renew(Kept& kept, coursetool::SourceKind kind, const std::filesystem::path& file);

    coursetool::PlainSourceReader reader_;
    std::map<std::filesystem::path::string_type, Kept> kept_;
    int compiled_ = 0;
};

} // namespace preview
