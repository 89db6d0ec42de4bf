#pragma once

#include "Platform/LogChannel.h"
#include "Platform/Workspace.h"
#include "Vantrel/FailureAlert.h"
#include "Vantrel/ProfileStore.h"
#include "Vantrel/SafariOpening.h"

#include <QCoroTask>
#include <QUrl>

namespace vantrel {

/// The one way in which profiles are opened, whatever asks for it. Failures are shown to the user, not returned.
/// Requests don't wait for each other. Main thread only; lives as long as the app, for its tasks refer to it.
class ProfileOpener {
public:
    /// Where a request comes from.
    enum class Source : std::uint8_t { menu, shortcut, link, intent };

    /// What it works with; all must outlive it.
    struct Environment {
        Workspace &workspace;
        FailureAlert &alert;
        LogSink &log;
        /// Null where there is no Safari.
        SafariOpening *safari = nullptr;
    };

    ProfileOpener(const ProfileStore &store, const Environment &environment);

    /// Opens the profile with web links; those that no browser should get are left out. Done when the browser has taken
    /// on the last start, or when a failure was shown.
    QCoro::Task<> open(Profile profile, QList<QUrl> links, Source source);

    /// Opens what a link of our own scheme names. Any other link is only logged.
    QCoro::Task<> openLink(QUrl link);

    void showFailure(const QString &message);

private:
    using Step = SafariOpening::Step;

    [[nodiscard]] Step start(Browser browser, ProfileTarget target, QList<QUrl> links);
    [[nodiscard]] static Step refuseSafari();
    [[nodiscard]] Step runCommands(Browser browser, ProfileTarget target, QList<QUrl> links);

    const ProfileStore &store_;
    Environment environment_;
    LogChannel log_;
};

/// "menu", "shortcut", "link" or "intent".
[[nodiscard]] QString rawValue(ProfileOpener::Source source);

} // namespace vantrel
