#include "Platform/Linux/StatusItem/PNGCache.h"

#include <QBuffer>

#include <utility>

namespace vantrel {
namespace {

/// Least effort: the files live in memory and are read by a program of the same session.
constexpr int quality = 80;

QByteArray encodedNow(const QImage &picture)
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    return picture.save(&file, "PNG", quality) ? file.data() : QByteArray();
}

} // namespace

void PNGCache::startMenu()
{
    former_ = std::exchange(current_, {});
}

QByteArray PNGCache::encoded(const QImage &picture)
{
    const qint64 key = picture.cacheKey();
    auto found = current_.constFind(key);
    if (found == current_.constEnd()) {
        const auto former = former_.constFind(key);
        found = current_.insert(key, former == former_.constEnd() ? encodedNow(picture) : *former);
    }
    return *found;
}

} // namespace vantrel
