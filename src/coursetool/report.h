#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace coursetool {

/// A place in a source. Lines and columns count from 1, columns in characters; 0 where the file as
/// a whole is meant.
struct Place {
    std::string file;
    int line = 0;
    int column = 0;
};

/// What a report says of one place.
struct Remark {
    enum class Kind { Warning, Fault, Failure };
    Kind kind;
    Place place;
    std::string sentence;
};

/// What a subcommand has to say about a course: one line each, French, "FILE:LINE:COLUMN: sentence"
/// (a warning has "avertissement : " before its sentence). Whatever the words come from, a line is
/// one line, and a terminal can be trusted with it.
class Report {
public:
    /// What is wrong with the course.
    void fault(const Place& place, std::string_view sentence);
    /// What could not be written, through no fault of the course. It counts as a fault, too.
    void failure(const Place& place, std::string_view sentence);
    /// The same with the system's cause: "le fichier ne peut pas être écrit : le disque est plein".
    void failure(const std::filesystem::path& path, const char* what, std::error_code cause);
    void warning(const Place& place, std::string_view sentence);
    /// What another report was told.
    void repeat(const Remark& remark);
    /// How far long work has come: done of all that there are of `what` ("pages"). It is done when
    /// both are the same. Told to who asked for it, and not kept.
    void progress(const char* what, std::size_t done, std::size_t all) const {
        if (listener_)
            listener_(what, done, all);
    }
    using ProgressListener = std::function<void(const char*, std::size_t, std::size_t)>;
    void onProgress(ProgressListener listener) { listener_ = std::move(listener); }

    /// The failure of standard output.
    void outputFailure(std::error_code error);

    bool hasFaults() const { return faults_ > 0; }
    bool hasFailures() const { return failures_ > 0; }
    std::size_t faultCount() const { return faults_; }
    /// All that was said, as it was said; lines() is what to show of it.
    const std::vector<Remark>& remarks() const { return remarks_; }
    /// In the order in which they were found.
    const std::vector<std::string>& lines() const { return lines_; }

private:
    std::size_t faults_ = 0;
    std::size_t failures_ = 0;
    std::vector<Remark> remarks_;
    std::vector<std::string> lines_;
    ProgressListener listener_;
};

/// "« x »": words of a course inside a sentence.
std::string inQuotes(std::string_view words);

} // namespace coursetool
