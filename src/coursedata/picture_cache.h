#pragma once

#include "page/picture.h"

#include <QDateTime>
#include <QString>

#include <cstddef>
#include <deque>
#include <memory>

namespace coursedata {

/// The picture files read last, so that a page that shows one many times, or is shown again, reads
/// it once. A file that has changed is read anew.
class PictureCache {
public:
    /// `most`: files held, as long as they have no more bytes than the largest of pictures may.
    explicit PictureCache(std::size_t most) : most_(most) {}

    /// The picture in the file at `path`; null when it is none.
    std::shared_ptr<const page::Picture> load(const QString& path);

private:
    struct Entry {
        QString path;
        QDateTime changed;
        qint64 bytes;
        std::shared_ptr<const page::Picture> picture; ///< null when it cannot be read
    };

    void makeRoom();

    std::size_t most_;
    std::deque<Entry> entries_; ///< the newest at the end
};

} // namespace coursedata
