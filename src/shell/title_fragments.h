#pragma once

#include <QStringView>

#include <array>

namespace shell {

/// Parts of window titles, by which the exit screen finds the windows to close: those that contain
/// one, compared exactly, letter case included.
///
/// The convention behind them: the title of a sibling program's window ends in "Orvalente, module "
/// and its number in two digits ("Mouvement d’un projectile - Orvalente, module 23"), and the title
/// of the help window is "Aide d’Orvalente". The first letter is left off, so that it may be either
/// case. Modules 1 to 18 have the entry of their number; module 23 has entry 19, since no program
/// is ever launched as module 19. No title of the shell's own windows fits: they have "Orvalente"
/// without ", module".
inline constexpr std::array<QStringView, 20> kTitleFragments = {
    u"ide d’Orvalente",     u"rvalente, module 01", u"rvalente, module 02", u"rvalente, module 03",
    u"rvalente, module 04", u"rvalente, module 05", u"rvalente, module 06", u"rvalente, module 07",
    u"rvalente, module 08", u"rvalente, module 09", u"rvalente, module 10", u"rvalente, module 11",
    u"rvalente, module 12", u"rvalente, module 13", u"rvalente, module 14", u"rvalente, module 15",
    u"rvalente, module 16", u"rvalente, module 17", u"rvalente, module 18", u"rvalente, module 23",
};

} // namespace shell
