#include "Vantrel/ProfileOpener.h"

#include "Vantrel/UnknownProfile.h"
#include "VantrelKit/LaunchCommand.h"
#include "VantrelKit/LaunchLink.h"
#include "VantrelKit/ProfileList.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ProfileOpener)
};

} // namespace

QString rawValue(ProfileOpener::Source source)
{
    switch (source) {
    case ProfileOpener::Source::menu: return u"menu"_s;
    case ProfileOpener::Source::shortcut: return u"shortcut"_s;
    case ProfileOpener::Source::link: return u"link"_s;
    case ProfileOpener::Source::intent: return u"intent"_s;
    }
    Q_UNREACHABLE();
}

ProfileOpener::ProfileOpener(const ProfileStore &store, const Environment &environment)
    : store_(store),
      environment_(environment),
      log_(environment.log, u"Open"_s)
{
}

QCoro::Task<> ProfileOpener::open(Profile profile, QList<QUrl> links, Source source)
{
    const Browser *installed = store_.browser(profile);
    if (!installed) {
        //: Error when a profile's browser was removed.
        showFailure(Texts::tr("The browser of this profile isn't installed."));
        co_return;
    }
    const Browser browser = *installed;
    const QList<LogValue> values{rawValue(browser.family), rawValue(source), qint64{links.size()}};
    log_.notice("Opening a %{public}s profile from the %{public}s with %ld links"_L1, values);
    const auto result = co_await start(browser, profile.target, links);
    if (!result) {
        log_.error("Opening failed: %{public}s"_L1, QList<LogValue>(1, result.error().message));
        showFailure(result.error().message);
    }
}

ProfileOpener::Step ProfileOpener::start(Browser browser, ProfileTarget target, QList<QUrl> links)
{
    const auto *safariProfile = std::get_if<ProfileTarget::SafariProfile>(&target.value);
    const bool isSafari =
        safariProfile != nullptr || std::holds_alternative<ProfileTarget::SafariPrivate>(target.value);
    if (!isSafari)
        return runCommands(std::move(browser), std::move(target), std::move(links));
    if (!environment_.safari)
        return refuseSafari();
    if (safariProfile)
        return environment_.safari->openProfile(safariProfile->name, safariProfile->index, std::move(browser),
                                                std::move(links));
    return environment_.safari->openPrivateWindow(std::move(browser), std::move(links));
}

ProfileOpener::Step ProfileOpener::runCommands(Browser browser, ProfileTarget target, QList<QUrl> links)
{
    for (const LaunchCommand &command : LaunchCommand::commands(browser.bundleID, links, target)) {
        auto started = co_await environment_.workspace.openApplication(browser.url, command.arguments);
        if (!started)
            co_return started;
    }
    co_return {};
}

ProfileOpener::Step ProfileOpener::refuseSafari()
{
    //: Error when a Safari profile is to be opened on a system without Safari.
    co_return std::unexpected(PlatformError{Texts::tr("Safari's profiles can only be opened on a Mac.")});
}

QCoro::Task<> ProfileOpener::openLink(QUrl link)
{
    const auto parsed = LaunchLink::parse(link);
    if (!parsed) {
        log_.error("Not a profile link: %{private}s"_L1, QList<LogValue>(1, link.toString()));
        co_return;
    }
    const auto profile = ProfileList::find(*parsed, store_.profiles(), store_.customNames());
    if (!profile) {
        showFailure(unknownProfileMessage(parsed->profileName));
        co_return;
    }
    co_await open(*profile, parsed->urls, Source::link);
}

void ProfileOpener::showFailure(const QString &message)
{
    //: Title of the alert when opening a profile fails.
    environment_.alert.show(Texts::tr("The Profile Didn't Open"), message);
}

} // namespace vantrel
