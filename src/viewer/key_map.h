#pragma once

#include <Qt>

#include <optional>

namespace viewer {

/// What a key does in the main window, beside the mnemonics of its buttons.
enum class KeyCommand {
    LineUp,
    LineDown,
    ScreenUp,
    ScreenDown,
    Top,
    Bottom,
    HistoryBack,
    HistoryForward,
    Find,
    FindNext,
    FindPrevious,
    LeaveFind,
    Home,
    Search,
    ReadAloud,
    Print,
    Help,
    Quit,
};

/// The command of a key press; nothing for a key without one.
std::optional<KeyCommand> keyCommand(int key, Qt::KeyboardModifiers modifiers);

} // namespace viewer
