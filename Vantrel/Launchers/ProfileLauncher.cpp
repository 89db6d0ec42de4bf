#include "Vantrel/Launchers/ProfileLauncher.h"

namespace vantrel {

Launcher launcherOf(const Profile &profile, const QString &title, LauncherIcon icon)
{
    Launcher launcher{
        .profileID = profile.id(),
        .title = title,
        .link = LaunchLink::forProfile(profile),
        .icon = [icon = std::move(icon)](int pixels) { return icon.image(pixels); },
    };
    if (!profile.target.isPrivate()) {
        const QString &browser = profile.browserBundleID;
        launcher.privateWindow =
            Launcher::Action{privateWindowName(browser), LaunchLink::forProfile(Profile::privateWindow(browser))};
    }
    return launcher;
}

} // namespace vantrel
