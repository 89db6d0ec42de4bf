#pragma once

#include "KeyboardShortcuts/KeyboardShortcuts.h"
#include "Vantrel/ProfileOpener.h"
#include "Vantrel/ProfileStore.h"

#include <QObject>
#include <QSet>

namespace vantrel {

/// Opens a profile when its global shortcut is released. Main thread only.
class ProfileHotkeys final : public QObject {
public:
    /// All must outlive it. It must live as long as the shortcuts call what they are to do.
    ProfileHotkeys(const ProfileStore &store, ProfileOpener &opener, KeyboardShortcuts &shortcuts);

    /// Takes on the store's profiles, now and whenever there are others. Call once, when the store has started.
    void start();

    /// The place of a profile's shortcut.
    [[nodiscard]] static ShortcutName shortcutName(const Profile &profile);

    /// The places of all profiles' shortcuts, in the store's order.
    [[nodiscard]] QList<ShortcutName> profileShortcutNames() const;

private:
    void registerProfileHotkeys();
    void open(const QString &profileID);

    const ProfileStore &store_;
    ProfileOpener &opener_;
    KeyboardShortcuts &shortcuts_;
    /// The profiles that have an action. It is never taken back: a profile that is gone may return.
    QSet<QString> registeredIDs_;
};

} // namespace vantrel
