#pragma once

#include "Platform/Linux/Search/BusInterface.h"
#include "Platform/ProfileAnswers.h"

namespace vantrel {

/// org.gnome.Shell.SearchProvider2: the search of GNOME Shell, and of others that ask as it does.
class ShellSearchInterface {
public:
    /// `answers` must outlive it.
    explicit ShellSearchInterface(ProfileAnswers &answers);
    ~ShellSearchInterface() = default;
    Q_DISABLE_COPY_MOVE(ShellSearchInterface)

    [[nodiscard]] const BusInterface &interface() const { return interface_; }

private:
    [[nodiscard]] BusInterface::Reply results(QDBusMessage call, QStringList terms);
    [[nodiscard]] BusInterface::Reply resultMetas(QDBusMessage call);
    [[nodiscard]] BusInterface::Reply activateResult(QDBusMessage call);
    [[nodiscard]] BusInterface::Reply launchSearch(const QDBusMessage &call);

    ProfileAnswers &answers_;
    BusInterface interface_;
};

} // namespace vantrel
