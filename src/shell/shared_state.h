#pragma once

#include "coursedata/data_directories.h"
#include "coursedata/page_index.h"
#include "text/bounded_array.h"

#include <QString>

#include <cstdint>

namespace shell {

/// Everything that more than one window or procedure shares: one object, made by the program and
/// handed by reference to whoever works on it. It is filled at start-up and lives until the end.
struct SharedState : coursedata::DataDirectories, coursedata::PageIndex {
    /// The status file that the shell and its sibling programs share, an absolute path: that of the
    /// installation directory, or one of the person's own where that cannot be written. Empty
    /// before start-up has reset it.
    QString StatusFilePath;

    /// File names of the sibling programs in slots 1 to 19. Nothing reads them; the launcher has
    /// names of its own. Kept on purpose.
    text::BoundedArray<QString, 0, 20> SiblingProgramNames;
    /// By module number: the process started last for that module, 0 for none since start-up. A
    /// process that has ended keeps its slot.
    text::BoundedArray<std::int32_t, 0, 40> SiblingProcessIds;

    /// Fixed page numbers of the pages visited, in slots 1 to HistoryPos; slot 0 is never used and
    /// those above may hold entries of a path that was left.
    text::BoundedArray<std::int16_t, 0, 100> HistoryPages;
    /// Where the page now shown stands in HistoryPages; 0 before the first page.
    std::int16_t HistoryPos = 0;
    /// Whether the next page shown enters the history. False only while going back or forward.
    bool HistoryRecording = true;

    /// Reading-order index of the page now shown.
    std::int32_t CurrentOrderIndex = 0;

    /// Module number of the sibling program being launched, then the answer about its status.
    std::int16_t ModuleNumber = 0;

    /// Chapter of an exercise session that a page has asked for; 0 for none.
    std::int16_t PendingExerciseChapter = 0;
    /// Page to show once the exercise window has closed; 0 for none.
    std::int16_t ExerciseReturnPage = 0;
    /// Page chosen in the search window; 0 for none.
    std::int32_t SearchChosenPage = 0;

    /// 0: no warning. 1: the screen is too narrow and the display warning blocks. 2: the warning
    /// is only advice, and the main window keeps itself centred.
    std::int16_t DisplayWarningMode = 0;

    /// Whether a video device is open.
    bool VideoOpen = false;
};

} // namespace shell
