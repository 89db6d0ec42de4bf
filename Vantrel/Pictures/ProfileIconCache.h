#pragma once

#include "Vantrel/Pictures/ProfileIcon.h"

#include <QHash>
#include <QSet>

namespace vantrel {

/// Icons of profiles, each drawn once and kept for as long as what it shows stays the same. Main thread only.
class ProfileIconCache {
public:
    /// The same image, down to its `cacheKey()`, until something about the icon changes.
    [[nodiscard]] QImage image(const ProfileIcon &icon, int pixels);

    /// Forgets the icons of all other profiles; of all, when there are no ids.
    void keepOnly(const QSet<QString> &ids);

private:
    struct Entry {
        ProfileIcon icon;
        /// By their size in pixels.
        QHash<int, QImage> images;
    };

    /// By the profiles' ids.
    QHash<QString, Entry> entries_;
};

} // namespace vantrel
