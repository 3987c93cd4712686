#pragma once

#include "mutator.h"

#include <filesystem>
#include <vector>

namespace fuzz {

/// The whole file; empty when it cannot be read.
Bytes readBytes(const std::filesystem::path& file);
void writeBytes(const std::filesystem::path& file, Input bytes);

/// The files of a format's seed places below `sources`, then those in `grown` with one of their
/// endings, sorted by path within each so that numbers mean the same input everywhere; then those
/// that the format makes.
std::vector<Bytes> readSeeds(const Format& format, const std::filesystem::path& sources,
                             const std::vector<std::filesystem::path>& grown = {});

/// A folder of this process alone, in memory where the system has such a place: reading a format
/// may need files, and thousands of them a minute. Emptied by whoever uses it; it goes with the
/// process, but not with one that a fault ends.
const std::filesystem::path& scratchFolder();
/// Takes what a process that a fault has ended left of its scratch folder.
void removeScratchFolderOf(int process);

} // namespace fuzz
