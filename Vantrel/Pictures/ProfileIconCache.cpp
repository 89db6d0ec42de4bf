#include "Vantrel/Pictures/ProfileIconCache.h"

namespace vantrel {

QImage ProfileIconCache::image(const ProfileIcon &icon, int pixels)
{
    Entry &entry = entries_[icon.id];
    if (entry.icon != icon)
        entry = {icon, {}};
    QImage &image = entry.images[pixels];
    if (image.isNull())
        image = icon.image(pixels);
    return image;
}

void ProfileIconCache::keepOnly(const QSet<QString> &ids)
{
    entries_.removeIf([&ids](const auto &entry) { return !ids.contains(entry.key()); });
}

} // namespace vantrel
