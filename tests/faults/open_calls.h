#pragma once

namespace preloaded {

/// What a preloaded library does where the program opens a file, with `mode` for one that it makes;
/// gives what open() gives. Each library has its own; open_calls.cpp brings the calls there.
[[gnu::visibility("hidden")]] int openFile(int directory, const char* path, int flags,
                                           unsigned mode);

} // namespace preloaded
