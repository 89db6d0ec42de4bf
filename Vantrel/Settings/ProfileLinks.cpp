#include "Vantrel/Settings/ProfileLinks.h"

#include "VantrelKit/LaunchLink.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// The web page of the example: a name that is kept free for such (RFC 2606).
constexpr auto examplePage = "https://example.org"_L1;

LaunchLink exampleLink(const ProfileStore &store, bool hasSafari)
{
    const QList<Profile> profiles = store.catalogue().openable();
    const auto named = std::ranges::find_if(profiles, [](const Profile &profile) { return !profile.name.isEmpty(); });
    if (!hasSafari && named != profiles.end())
        return LaunchLink::forProfile(*named);
    return {.browserBundleID = hasSafari ? u"com.apple.Safari"_s : u"org.mozilla.firefox"_s,
            .profileName = u"Work"_s,
            .profileID = std::nullopt,
            .urls = {}};
}

} // namespace

QString linkExample(const ProfileStore &store, const SystemConventions &conventions, bool hasSafari)
{
    // Written with the page as it is, which people recognise; it needs no escapes.
    return conventions.linkCommand + uR"( ")"_s + exampleLink(store, hasSafari).text() + "&url="_L1 + examplePage +
           u'"';
}

QString linkToCopy(const Profile &profile)
{
    LaunchLink link = LaunchLink::forProfile(profile);
    if (profile.target.isPrivate())
        link.profileName = u"Private"_s;
    return link.text();
}

QString openCommand(const QString &profileID)
{
    QString quoted = profileID;
    // What a shell takes as it is, between two quotes.
    quoted.replace(u'\'', uR"('\'')"_s);
    return u"vantrel open '"_s + quoted + u'\'';
}

} // namespace vantrel
