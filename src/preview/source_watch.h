#pragma once

#include <QFileSystemWatcher>
#include <QString>
#include <QTimer>

#include <functional>

namespace preview {

/// Tells when something in the sources of a course has changed: a file written in place, one that
/// an editor has put in the place of the old one, one that came or went.
class SourceWatch {
public:
    /// How long all is quiet before it tells, in milliseconds: an editor that saves does several
    /// things in a row. Not longer, for the author is waiting.
    static constexpr int kQuietMs = 20;

    /// `changed` is called from the event loop.
    SourceWatch(const QString& sources, std::function<void()> changed);

private:
    void watchAll();

    QString sources_;
    QFileSystemWatcher watcher_;
    QTimer quiet_;
};

} // namespace preview
