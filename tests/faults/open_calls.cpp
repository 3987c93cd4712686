#include "faults/open_calls.h"

#include <fcntl.h>

#include <cstdarg>

#define OPEN_WITH_MODE(directory, path, flags)                                                     \
    va_list rest;                                                                                  \
    va_start(rest, flags);                                                                         \
    const unsigned mode = (flags) & (O_CREAT | O_TMPFILE) ? va_arg(rest, unsigned) : 0;            \
    va_end(rest);                                                                                  \
    return preloaded::openFile(directory, path, flags, mode)

extern "C" {

int open(const char* path, int flags, ...) {
    OPEN_WITH_MODE(AT_FDCWD, path, flags);
}
int open64(const char* path, int flags, ...) {
    OPEN_WITH_MODE(AT_FDCWD, path, flags);
}
int openat(int directory, const char* path, int flags, ...) {
    OPEN_WITH_MODE(directory, path, flags);
}
int openat64(int directory, const char* path, int flags, ...) {
    OPEN_WITH_MODE(directory, path, flags);
}

} // extern "C"
