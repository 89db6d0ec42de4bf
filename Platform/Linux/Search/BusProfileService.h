#pragma once

#include "Platform/Linux/Search/ProfilesInterface.h"
#include "Platform/Linux/Search/RunnerInterface.h"
#include "Platform/Linux/Search/ShellSearchInterface.h"
#include "Platform/ProfileService.h"

#include <QDBusVirtualObject>

#include <optional>

namespace vantrel {

/// Answers on the session bus, by the interfaces of the desktops' searches and one of its own. They belong to an object
/// that it doesn't export itself: the app's, which is there before the app's name is, so that no call comes too early.
class BusProfileService final : public QDBusVirtualObject, public ProfileService {
public:
    /// `objectPath` is that object's.
    BusProfileService(QDBusConnection bus, QString objectPath);

    void start(ProfileAnswers &answers) override;
    void announceChange() override;

    /// The descriptions of the interfaces; nothing before the start.
    [[nodiscard]] QString introspect(const QString &path) const override;
    /// False when the call is for none of the interfaces.
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;

private:
    struct Interfaces {
        explicit Interfaces(ProfileAnswers &answers) : profiles(answers), runner(answers), shell(answers) {}

        ProfilesInterface profiles;
        RunnerInterface runner;
        ShellSearchInterface shell;
    };

    QDBusConnection bus_;
    QString objectPath_;
    /// None before the start.
    std::optional<Interfaces> interfaces_;
};

} // namespace vantrel
