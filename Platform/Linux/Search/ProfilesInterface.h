#pragma once

#include "Platform/Linux/Search/BusInterface.h"
#include "Platform/ProfileAnswers.h"

namespace vantrel {

/// app.kestrune.Vantrel: the app's own interface for scripts and other programs. Documentation/dbus.md describes it.
class ProfilesInterface {
public:
    /// `answers` must outlive it.
    explicit ProfilesInterface(ProfileAnswers &answers);
    ~ProfilesInterface() = default;
    Q_DISABLE_COPY_MOVE(ProfilesInterface)

    [[nodiscard]] const BusInterface &interface() const { return interface_; }

    /// The signal that what `ListProfiles` answers has changed.
    [[nodiscard]] static QDBusMessage profilesChanged(const QString &objectPath);

private:
    [[nodiscard]] BusInterface::Reply listProfiles(QDBusMessage call);
    [[nodiscard]] BusInterface::Reply open(QDBusMessage call, QStringList links);

    ProfileAnswers &answers_;
    BusInterface interface_;
};

} // namespace vantrel
