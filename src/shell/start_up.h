#pragma once

#include "platform/message_box.h"
#include "platform/screen.h"
#include "shell/display_check.h"
#include "shell/shared_state.h"

namespace shell {

/// `directory` with exactly one separator at its end. Separators become "/" on every system: Qt
/// takes it everywhere, and a "\" at the end would be part of a name on most.
QString installDir(const QString& directory);

/// What start-up does to the main window. None of it may fail: what cannot be done is passed over.
class StartUpWindow {
public:
    virtual ~StartUpWindow() = default;

    virtual void setWidth(double twips) = 0;
    virtual void place(const Placement& placement) = 0;
    /// Handles the window messages that are waiting, and returns.
    virtual void pumpPendingMessages() = 0;
};

/// The main window's connection with the course database.
class CourseBinding {
public:
    virtual ~CourseBinding() = default;

    /// Opens the database at `path` and its table of pages. A failure is silent: the window then
    /// has no record to show.
    virtual void bind(const QString& path) = 0;
};

/// The window that warns about the screen's width.
class DisplayWarning {
public:
    enum class Choice { Continue, Quit };

    virtual ~DisplayWarning() = default;

    /// Shows the window, as SharedState::DisplayWarningMode says, until it is answered.
    virtual Choice showModally() = 0;
};

/// Checks and prepares everything before the main window sets itself up: the display, the course
/// database, the shared tables, the status file.
class StartUp {
public:
    /// The parts of the system that start-up touches.
    struct Parts {
        platform::Screen& screen;
        platform::MessageBoxes& messageBoxes;
        StartUpWindow& window;
        CourseBinding& database;
        DisplayWarning& warning;
    };

    enum class Outcome { GoOn, End };

    /// `courseDirectory` becomes the installation directory.
    StartUp(SharedState& state, const QString& courseDirectory, Parts parts);

    /// Runs once. With End the program is to end at once; the reason has been shown.
    Outcome run();

    /// Path of the cover picture, kept for the window though another picture is shown: meant so.
    /// Empty before run().
    const QString& coverPath() const { return coverPath_; }

private:
    void prepareWindow();
    void clearSharedState();
    bool bindDatabase();
    void fillSiblingProgramNames();
    bool warnWhileTooNarrow();
    void centreWindow();
    void resetStatusFile();
    void resetPersonalStatusFile(QStringList texts);
    Outcome endWith(const QString& reason);

    SharedState& state_;
    QString courseDirectory_;
    Parts parts_;
    QString coverPath_;
};

} // namespace shell
