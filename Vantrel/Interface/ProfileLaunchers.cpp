#include "Vantrel/Interface/ProfileLaunchers.h"

namespace vantrel {

LauncherTools &ProfileLaunchers::tools()
{
    if (tools_)
        return *tools_;
    return tools_.emplace(LauncherPlatform::create());
}

LauncherMaker &ProfileLaunchers::maker()
{
    if (maker_)
        return *maker_;
    SavePanel &panel = environment_.panel ? *environment_.panel : ownPanel_;
    return maker_.emplace(LauncherMaker::Environment{tools().writer(), tools().files(), panel,
                                                     environment_.activationPolicy, environment_.log});
}

void ProfileLaunchers::make(const Profile &profile, const ProfileCatalogue &catalogue)
{
    const Browser *browser = catalogue.browser(profile);
    if (!browser)
        return;
    const auto browserIcon = [this, url = browser->url](int pixels) { return tools().icons().icon(url, pixels); };
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
        icon = tools().icons().icon(application, pixels);
        if (!icon.isNull())
            icon = icon.scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    return icon;
}

} // namespace vantrel
