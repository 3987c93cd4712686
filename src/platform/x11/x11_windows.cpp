#include "platform/x11/x11_windows.h"

#include "platform/x11/x11_display.h"

#include <QFileInfo>

#include <algorithm>

namespace platform {

namespace {

using Windows = std::vector<xcb_window_t>;

template <class Predicate>
std::optional<xcb_window_t> firstOf(const Windows& windows, Predicate belongs) {
    const auto found = std::find_if(windows.begin(), windows.end(), belongs);
    return found == windows.end() ? std::nullopt : std::optional(*found);
}

bool namesProgram(const QByteArrayList& classNames, const QString& programName) {
    const QString withoutSuffix = QFileInfo(programName).completeBaseName();
    return std::any_of(classNames.begin(), classNames.end(), [&](const QByteArray& bytes) {
        const QString name = QString::fromLatin1(bytes);
        return name.compare(programName, Qt::CaseInsensitive) == 0 ||
               name.compare(withoutSuffix, Qt::CaseInsensitive) == 0;
    });
}

std::optional<xcb_window_t> findWindow(const X11Display& display, qint64 pid,
                                       const QString& programName) {
    const Windows windows = display.programWindows();
    auto found = firstOf(
        windows, [&](xcb_window_t window) { return pid > 0 && display.processId(window) == pid; });
    if (!found && !programName.isEmpty()) {
        found = firstOf(windows, [&](xcb_window_t window) {
            return namesProgram(display.classNames(window), programName);
        });
    }
    return found;
}

} // namespace

bool X11Windows::activate(qint64 pid, const QString& programName) {
    const X11Display display(display_);
    if (!display.isOpen())
        return false;
    const std::optional<xcb_window_t> window = findWindow(display, pid, programName);
    if (!window)
        return false;
    display.bringToFront(*window);
    return true;
}

} // namespace platform
