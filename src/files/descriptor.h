#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <system_error>

namespace files {

/// An open file. It closes with the object, and programs that are started do not inherit it.
/// Functions that fail give false and say in `error` why.
class Descriptor {
public:
    enum class Mode {
        Read,     ///< does not wait for whoever would write into a pipe
        Create,   ///< to write; fails when the name is taken, be it by a link
        Existing, ///< to write over what is there, from its start
        Change    ///< to write into what is there
    };

    Descriptor() = default;
    /// Without a file when it cannot be opened.
    Descriptor(const std::filesystem::path& path, Mode mode, std::error_code& error);
    ~Descriptor();
    Descriptor(Descriptor&& other) noexcept;
    Descriptor& operator=(Descriptor&& other) noexcept;

    explicit operator bool() const { return number_ >= 0; }

    bool isRegularFile() const;
    /// Bytes it has now; 0 for what is no regular file.
    std::uint64_t size() const;
    /// False, without an error, when the file ends before.
    bool readAt(std::uint64_t offset, std::span<std::uint8_t> bytes, std::error_code& error) const;
    bool write(std::span<const std::uint8_t> bytes, std::error_code& error) const;
    bool writeAt(std::uint64_t offset, std::span<const std::uint8_t> bytes,
                 std::error_code& error) const;
    /// Cuts the file off there, or has it grow with zeros.
    bool setLength(std::uint64_t length, std::error_code& error) const;
    /// Returns when all that was written is on the disk, as far as its file system knows of that.
    bool sync(std::error_code& error) const;
    /// False when what was written last turns out to be lost.
    bool close(std::error_code& error);

    enum class Lock {
        Taken,
        Held,   ///< by who opened the file before
        Unknown ///< the file system, or the system, knows no locks
    };
    /// Keeps others that ask for it away, until all descriptors of this opening are closed or the
    /// program dies.
    Lock takeLock() const;
    /// The same opening once more, for who keeps its lock beyond close(). None when it fails.
    Descriptor again() const;
    /// Whether this file is what `path` names now, and no link to it. False where that is unknown.
    bool isNamed(const std::filesystem::path& path) const;

private:
    int number_ = -1;
};

/// Returns when the names that stand in a directory are on the disk. Systems where directories
/// cannot be opened keep them by themselves.
void syncDirectory(const std::filesystem::path& directory);

/// Returns when everything that was written to the file system of `directory` is on the disk: many
/// small files take no longer that way than one. Where there is no such call, nothing is waited
/// for.
bool syncFileSystem(const std::filesystem::path& directory, std::error_code& error);

} // namespace files
