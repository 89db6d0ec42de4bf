#pragma once

#include "Platform/Linux/Search/BusInterface.h"
#include "Platform/ProfileAnswers.h"

namespace vantrel {

/// org.kde.krunner1: the search of KDE Plasma.
class RunnerInterface {
public:
    /// `answers` must outlive it.
    explicit RunnerInterface(ProfileAnswers &answers);
    ~RunnerInterface() = default;
    Q_DISABLE_COPY_MOVE(RunnerInterface)

    [[nodiscard]] const BusInterface &interface() const { return interface_; }

private:
    [[nodiscard]] BusInterface::Reply match(QDBusMessage call);
    [[nodiscard]] BusInterface::Reply run(QDBusMessage call);
    [[nodiscard]] BusInterface::Reply setActivationToken(const QDBusMessage &call);

    ProfileAnswers &answers_;
    /// Told ahead of the next run.
    QString activationToken_;
    BusInterface interface_;
};

} // namespace vantrel
