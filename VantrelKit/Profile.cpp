#include "VantrelKit/Profile.h"

#include "VantrelKit/KnownBrowsers.h"

#include <QCoreApplication>

#include <algorithm>

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Profile)
};

} // namespace

Profile Profile::privateWindow(const QString &browserBundleID)
{
    const BrowserFamily family = KnownBrowsers::family(browserBundleID).value_or(BrowserFamily::chromium);
    return {.browserBundleID = browserBundleID, .name = {}, .target = ProfileTarget::privateWindow(family)};
}

QString Profile::id() const
{
    return browserBundleID + u'/' + target.key();
}

size_t qHash(const Profile &profile, size_t seed)
{
    return qHashMulti(seed, profile.browserBundleID, profile.name, profile.target, profile.avatarPNG.has_value(),
                      profile.avatarPNG.value_or(QByteArray()));
}

QString displayTitle(const Profile &profile, const QList<Browser> &browsers, const QString &displayName)
{
    const auto browser = std::ranges::find(browsers, profile.browserBundleID, &Browser::bundleID);
    const QString browserName = browser == browsers.end() ? profile.browserBundleID : browser->name;
    //: A profile with its browser, as launcher apps and Shortcuts name it. First: the browser; second: the profile.
    return Texts::tr("%1 – %2").arg(browserName, displayName);
}

} // namespace vantrel
