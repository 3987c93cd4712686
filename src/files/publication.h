#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace files {

/// Puts new files into an installation directory, all of them or none, among others that stay. They
/// are first written to a folder of their own in it, kFolder. Then a list of what goes where is
/// written there, the journal: with it the new course stands, and whoever finds it, after a crash
/// or a power failure, only has to go on with the moving. What was there before is kept until all
/// is done, and comes back should a move be impossible.
///
/// The journal may come with a course from anywhere: what it names is moved within the directory
/// only, and over no link.
class Publication {
public:
    static constexpr char kFolder[] = ".orvalente-cours";

    /// Both paths are relative to the directory.
    struct Replacement {
        std::filesystem::path target; ///< where the new file goes
        std::filesystem::path old;    ///< what goes for it; the same name or one that differs in
                                      ///< letter case, empty when there is nothing
    };

    explicit Publication(std::filesystem::path directory) : directory_(std::move(directory)) {}

    /// Where to write the new file of that path relative to the directory.
    std::filesystem::path newFile(const std::filesystem::path& relative) const;

    /// Makes an empty folder for new files.
    bool prepare();
    /// Whether there is a journal: a publication that is to be finished.
    bool isPending() const;
    /// Writes the journal. All new files are there, and the directories that they go to.
    bool begin(std::vector<Replacement> replacements);
    /// Does what the journal says. When that is impossible all is put back, and it has failed; when
    /// even that is, the journal stays.
    bool finish();
    /// Removes the folder, unless there is a journal in it.
    void clear();

    /// After a failure: what went wrong, and with which file.
    const std::error_code& error() const { return error_; }
    const std::filesystem::path& place() const { return place_; }

private:
    std::filesystem::path folder() const { return directory_ / kFolder; }
    std::filesystem::path journal() const;
    std::filesystem::path keptFile(std::size_t index) const;
    bool keepOld(std::size_t index);
    std::string journalText() const;
    bool readJournal();
    bool isHarmless(const std::filesystem::path& relative) const;
    bool moveIn(const Replacement& step);
    bool putBack();
    bool fail(const std::filesystem::path& at);

    std::filesystem::path directory_;
    std::vector<Replacement> steps_;
    std::error_code error_;
    std::filesystem::path place_;
};

/// Finishes what a build that was cut short has left in an installation directory, if it has, if
/// the directory can be written and if no other program is at work in it.
void finishPublication(const std::filesystem::path& directory);

} // namespace files
