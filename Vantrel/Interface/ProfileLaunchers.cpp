#include "Vantrel/Interface/ProfileLaunchers.h"

namespace vantrel {

LauncherPlatform &ProfileLaunchers::platform()
{
    if (!platform_)
        platform_.emplace(LauncherPlatform::create());
    return *platform_;
}

LauncherMaker &ProfileLaunchers::maker()
{
    if (!maker_) {
        LauncherPlatform &ports = platform();
        maker_.emplace(LauncherMaker::Environment{*ports.writer, *ports.files, panel_, environment_.activationPolicy,
                                                  environment_.log});
    }
    return *maker_;
}

void ProfileLaunchers::make(const Profile &profile, const ProfileCatalogue &catalogue)
{
    const Browser *browser = catalogue.browser(profile);
    if (!browser)
        return;
    const auto browserIcon = [this, url = browser->url](int pixels) { return platform().icons->icon(url, pixels); };
    makeAndTell(profile, catalogue.title(profile),
                LauncherIcon{browserIcon, ProfileIcon::of(profile, catalogue.displayName(profile))});
}

QCoro::Task<> ProfileLaunchers::makeAndTell(Profile profile, QString title, LauncherIcon icon)
{
    const LauncherMaker::Result made = co_await maker().make(std::move(profile), std::move(title), std::move(icon));
    if (!made)
        environment_.alert.show(LauncherMaker::alertTitle(), made.error().message);
}

QImage ProfileLaunchers::browserIcon(const QUrl &application, int pixels)
{
    QImage &icon = icons_[application];
    if (icon.width() != pixels) {
        icon = platform().icons->icon(application, pixels);
        if (!icon.isNull())
            icon = icon.scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return icon;
}

} // namespace vantrel
