#pragma once

#include "app/command_line.h"

#include <memory>

namespace preview {
class PreviewedCourse;
}

namespace app {

/// The shell with all its parts. Needs a QApplication.
class ShellApplication {
public:
    /// `scale` is the factor by which Qt enlarges everything.
    ShellApplication(const CommandLine& commandLine, double scale);
    ~ShellApplication();

    /// Start-up and the first page; false when the program is to end.
    bool start();

    /// From here on it shows what becomes of the sources of this course, which must outlive it.
    void follow(preview::PreviewedCourse& course);

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

} // namespace app
