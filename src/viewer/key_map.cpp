#include "viewer/key_map.h"

#include <algorithm>
#include <array>

namespace viewer {

namespace {

struct Row {
    int key;
    Qt::KeyboardModifiers modifiers;
    KeyCommand command;
};

constexpr std::array<Row, 21> kRows = {{
    {Qt::Key_Up, Qt::NoModifier, KeyCommand::LineUp},
    {Qt::Key_Down, Qt::NoModifier, KeyCommand::LineDown},
    {Qt::Key_PageUp, Qt::NoModifier, KeyCommand::ScreenUp},
    {Qt::Key_PageDown, Qt::NoModifier, KeyCommand::ScreenDown},
    {Qt::Key_Home, Qt::NoModifier, KeyCommand::Top},
    {Qt::Key_End, Qt::NoModifier, KeyCommand::Bottom},
    {Qt::Key_Left, Qt::AltModifier, KeyCommand::HistoryBack},
    {Qt::Key_Right, Qt::AltModifier, KeyCommand::HistoryForward},
    {Qt::Key_Backspace, Qt::NoModifier, KeyCommand::HistoryBack},
    {Qt::Key_F, Qt::ControlModifier, KeyCommand::Find},
    {Qt::Key_F3, Qt::NoModifier, KeyCommand::FindNext},
    {Qt::Key_F3, Qt::ShiftModifier, KeyCommand::FindPrevious},
    {Qt::Key_G, Qt::ControlModifier, KeyCommand::FindNext},
    {Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier, KeyCommand::FindPrevious},
    {Qt::Key_Escape, Qt::NoModifier, KeyCommand::LeaveFind},
    {Qt::Key_Home, Qt::AltModifier, KeyCommand::Home},
    {Qt::Key_L, Qt::ControlModifier, KeyCommand::Search},
    {Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier, KeyCommand::ReadAloud},
    {Qt::Key_P, Qt::ControlModifier, KeyCommand::Print},
    {Qt::Key_F1, Qt::NoModifier, KeyCommand::Help},
    {Qt::Key_Q, Qt::ControlModifier, KeyCommand::Quit},
}};

} // namespace

std::optional<KeyCommand> keyCommand(int key, Qt::KeyboardModifiers modifiers) {
    modifiers &= ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    const auto row = std::find_if(kRows.begin(), kRows.end(), [&](const Row& candidate) {
        return candidate.key == key && candidate.modifiers == modifiers;
    });
    return row == kRows.end() ? std::nullopt : std::optional(row->command);
}

} // namespace viewer
