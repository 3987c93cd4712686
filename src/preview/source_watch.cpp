#include "preview/source_watch.h"

#include "coursetool/tables.h"

#include <QDirIterator>
#include <QSet>

namespace preview {

SourceWatch::SourceWatch(const QString& sources, std::function<void()> changed)
    : sources_(sources) {
    quiet_.setSingleShot(true);
    quiet_.setInterval(kQuietMs);
    const auto wait = [this] { quiet_.start(); };
    QObject::connect(&watcher_, &QFileSystemWatcher::fileChanged, &quiet_, wait);
    QObject::connect(&watcher_, &QFileSystemWatcher::directoryChanged, &quiet_, wait);
    QObject::connect(&quiet_, &QTimer::timeout, &quiet_, [this, changed = std::move(changed)] {
        watchAll(); // before reading: what changes meanwhile is told once more
        changed();
    });
    watchAll();
}

/// A file that was put in the place of another is not watched any more, so all are asked for again.
/// Links are not followed into other folders.
void SourceWatch::watchAll() {
    QSet<QString> there{sources_};
    for (const char* folder : {coursetool::kPagesFolder, coursetool::kExercisesFolder,
                               coursetool::kFilesFolder, coursetool::kDiscFolder}) {
        const QString top = sources_ + u'/' + QLatin1String(folder);
        if (!QFileInfo(top).isDir())
            continue;
        there.insert(top);
        QDirIterator all(top, QDir::AllEntries | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
        while (all.hasNext())
            there.insert(all.next());
    }
    const QStringList watched = watcher_.files() + watcher_.directories();
    for (const QString& path : watched)
        there.remove(path);
    if (!there.isEmpty())
        watcher_.addPaths(there.values());
}

} // namespace preview
