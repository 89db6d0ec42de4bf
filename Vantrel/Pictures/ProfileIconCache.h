#pragma once

#include "Vantrel/Pictures/ProfileIcon.h"

#include <QHash>
#include <QMap>
#include <QObject>
#include <QSet>
#include <QThreadPool>

namespace vantrel {

/// Icons of profiles, each drawn once and kept for as long as what it shows stays the same. Main thread only; what was
/// asked for in advance is drawn on another one.
class ProfileIconCache final : public QObject {
    Q_OBJECT

public:
    /// In device pixels; 0 for none of the kind.
    struct Sizes {
        int image = 0;
        int png = 0;

        friend bool operator==(const Sizes &, const Sizes &) = default;
    };

    ProfileIconCache();
    /// Waits for the icon that is being drawn.
    ~ProfileIconCache() override;
    Q_DISABLE_COPY_MOVE(ProfileIconCache)

    /// The same image, down to its `cacheKey()`, until something about the icon changes.
    [[nodiscard]] QImage image(const ProfileIcon &icon, int pixels);

    /// The same as a PNG file; empty for less than one pixel.
    [[nodiscard]] QByteArray png(const ProfileIcon &icon, int pixels);

    /// Draws what isn't there yet, so that nobody has to wait for it later. What was asked for before and isn't asked
    /// for now is given up.
    void prepare(const QList<ProfileIcon> &icons, Sizes sizes);

    /// Forgets the icons of all other profiles; of all, when there are no ids.
    void keepOnly(const QSet<QString> &ids);

Q_SIGNALS:
    /// All that `prepare` was asked for last is there. Told from the event loop.
    void prepared();

private:
    struct Entry {
        ProfileIcon icon;
        /// By their size in pixels, of which there are one or two.
        QMap<int, QImage> images;
        QMap<int, QByteArray> files;
    };

    [[nodiscard]] Entry &entry(const ProfileIcon &icon);
    void take(const QList<Entry> &drawn, int round);

    /// By the profiles' ids.
    QHash<QString, Entry> entries_;
    /// Counts what was asked for in advance.
    QAtomicInt round_;
    QThreadPool pool_;
};

} // namespace vantrel
