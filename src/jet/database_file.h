#pragma once

#include "jet/database.h"
#include "jet/page_source.h"
#include "jet/result.h"
#include "jet/writer.h"

#include <filesystem>
#include <memory>
#include <system_error>

namespace jet {

// Databases in files. Failures name the file; those of the system say why it refused.

/// Database::open for a file. It stays open, and readable, as long as the object or one of its
/// tables lives.
Result<Database> openDatabase(const std::filesystem::path& path);

/// The pages of a file.
Result<std::shared_ptr<PageSource>> openPages(const std::filesystem::path& path);

/// DatabaseWriter::create for a file. All goes to a temporary file next to the target, which takes
/// the target's place in finish() only: until then, and after any failure, a file that was there
/// before is as it was. Dropped without finish(), the writer leaves nothing behind.
Result<DatabaseWriter> createDatabase(const std::filesystem::path& path);

/// The failure with the name of the file at `path`.
Failure fileFailure(Failure::Kind kind, const std::filesystem::path& path, const char* what);

/// The same for what the system refused, with its cause behind a colon; without one when `error`
/// is none.
Failure fileFailure(const std::filesystem::path& path, const char* what, std::error_code error);

} // namespace jet
