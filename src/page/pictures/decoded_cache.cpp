#include "page/pictures/decoded_cache.h"

#include <QCache>

#include <mutex>

namespace page::decoded {

namespace {

using Key = std::pair<const void*, int>;

Key keyOf(const void* picture, Part part) {
    return {picture, static_cast<int>(part)};
}

struct Cache {
    std::mutex mutex;
    QCache<Key, std::shared_ptr<const void>> things{kMostDecodedBytes};
};

/// Never destroyed: pictures may live until the very end of the program.
Cache& cache() {
    static auto* const shared = new Cache;
    return *shared;
}

} // namespace

std::shared_ptr<const void> find(const void* picture, Part part) {
    const std::lock_guard lock(cache().mutex);
    const auto* found = cache().things.object(keyOf(picture, part));
    return found ? *found : nullptr;
}

void keep(const void* picture, Part part, std::shared_ptr<const void> thing, qint64 bytes) {
    const std::lock_guard lock(cache().mutex);
    if (!thing || bytes > kMostKeptBytes)
        cache().things.remove(keyOf(picture, part));
    else
        cache().things.insert(keyOf(picture, part),
                              new std::shared_ptr<const void>(std::move(thing)), bytes);
}

QImage findPixels(const void* picture, Part part, QSize size) {
    const auto found = find(picture, part);
    const auto* pixels = static_cast<const QImage*>(found.get());
    return pixels && pixels->size() == size ? *pixels : QImage();
}

void keepPixels(const void* picture, Part part, const QImage& pixels) {
    keep(picture, part, pixels.isNull() ? nullptr : std::make_shared<QImage>(pixels),
         pixels.sizeInBytes());
}

void forget(const void* picture) {
    const std::lock_guard lock(cache().mutex);
    for (const Part part : {Part::Own, Part::Drawn, Part::Drawing})
        cache().things.remove(keyOf(picture, part));
}

qint64 bytes() {
    const std::lock_guard lock(cache().mutex);
    return cache().things.totalCost();
}

} // namespace page::decoded
