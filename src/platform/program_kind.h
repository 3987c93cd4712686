#pragma once

#include <QString>

namespace platform {

/// What kind of program a file holds, told by its first bytes and not by its name.
enum class ProgramKind {
    Elf,        ///< a program of Linux and its relatives
    Script,     ///< a text that names its interpreter ("#!")
    Windows,    ///< a 32-bit or 64-bit Windows program ("PE")
    SixteenBit, ///< a DOS program, or one for 16-bit Windows ("NE")
    Unknown,    ///< anything else, or a file that cannot be read
};

/// The kind of the file at `path`, from the "MZ" header (4-byte offset of the second header at
/// 0x3C) and the two-letter or four-letter mark of the second header. Reads at most 68 bytes.
ProgramKind programKind(const QString& path);

} // namespace platform
