#pragma once

#include "jet/editor.h"
#include "jet/page_file.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// The real file, up to a number of writes. It does not wait for the disk.
class CutSink : public jet::PageSink {
public:
    enum class Then {
        Dead, ///< all that comes later fails too, so that nothing is taken back
        Works ///< one write fails, as on a full disk
    };
    /// `done` counts the writes that reached the file.
    CutSink(const std::filesystem::path& path, std::size_t allowed, std::size_t& done,
            Then then = Then::Dead);

    jet::Result<void> write(std::uint32_t number, jet::Bytes page) override;
    jet::Result<void> sync() override;
    void cutBack() override;

private:
    std::unique_ptr<jet::PageSink> file_;
    std::size_t allowed_;
    std::size_t* done_;
    Then then_;
    bool cut_ = false;
};

/// As many writes as a change may make.
inline constexpr std::size_t kUncut = 100000;

/// The cells of each record of a file, by table and position, as a dump shows them; "damaged" for
/// one that cannot be read.
using Snapshot = std::map<std::pair<std::u16string, std::size_t>, std::vector<std::string>>;
Snapshot snapshot(const std::filesystem::path& path);

/// Checks what no reader looks at: each page has one owner or is free, never both; long values lie
/// on pages of their column; definitions count their rows right; data pages their free bytes.
void expectSoundMaps(const std::filesystem::path& path);
