#include "VantrelKit/KnownBrowsers.h"

#include <QMap>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Identifier to data folder. A map, so that its keys come out sorted by plain string order.
using FolderTable = QMap<QString, QString>;

const QStringList &safariIdentifiers()
{
    static const QStringList identifiers{u"com.apple.Safari"_s, u"com.apple.SafariTechnologyPreview"_s};
    return identifiers;
}

const FolderTable &chromiumFolders()
{
    // Opera and Helium name their folders after their bundle identifiers.
    static const FolderTable folders{
        {u"com.google.Chrome"_s, u"Google/Chrome"_s},
        {u"com.google.Chrome.beta"_s, u"Google/Chrome Beta"_s},
        {u"com.google.Chrome.dev"_s, u"Google/Chrome Dev"_s},
        {u"com.google.Chrome.canary"_s, u"Google/Chrome Canary"_s},
        {u"com.microsoft.edgemac"_s, u"Microsoft Edge"_s},
        {u"com.microsoft.edgemac.Beta"_s, u"Microsoft Edge Beta"_s},
        {u"com.microsoft.edgemac.Dev"_s, u"Microsoft Edge Dev"_s},
        {u"com.microsoft.edgemac.Canary"_s, u"Microsoft Edge Canary"_s},
        {u"com.brave.Browser"_s, u"BraveSoftware/Brave-Browser"_s},
        {u"com.brave.Browser.beta"_s, u"BraveSoftware/Brave-Browser-Beta"_s},
        {u"com.brave.Browser.dev"_s, u"BraveSoftware/Brave-Browser-Dev"_s},
        {u"com.brave.Browser.nightly"_s, u"BraveSoftware/Brave-Browser-Nightly"_s},
        {u"com.brave.Browser.origin"_s, u"BraveSoftware/Brave-Origin"_s},
        {u"com.brave.Browser.origin.beta"_s, u"BraveSoftware/Brave-Origin-Beta"_s},
        {u"com.brave.Browser.origin.nightly"_s, u"BraveSoftware/Brave-Origin-Nightly"_s},
        {u"com.vivaldi.Vivaldi"_s, u"Vivaldi"_s},
        {u"com.operasoftware.Opera"_s, u"com.operasoftware.Opera"_s},
        {u"com.operasoftware.OperaGX"_s, u"com.operasoftware.OperaGX"_s},
        {u"org.chromium.Chromium"_s, u"Chromium"_s},
        {u"com.chromium.ungoogled"_s, u"Ungoogled Chromium"_s},
        {u"com.pushplaylabs.sidekick"_s, u"Sidekick"_s},
        {u"com.yandex.desktop"_s, u"Yandex/YandexBrowser"_s},
        {u"de.srware.iron"_s, u"SRWare Iron"_s},
        {u"com.slimjet.browser"_s, u"Slimjet"_s},
        {u"com.coccoc.coccocbrowser"_s, u"CocCoc"_s},
        {u"com.epic.EpicPrivacyBrowser"_s, u"Epic"_s},
        {u"org.chromium.Thorium"_s, u"Thorium"_s},
        {u"com.bookry.wavebox"_s, u"WaveboxApp"_s},
        {u"ai.perplexity.comet"_s, u"Comet"_s},
        {u"net.imput.helium"_s, u"net.imput.helium"_s},
    };
    return folders;
}

const FolderTable &firefoxFolders()
{
    static const FolderTable folders{
        {u"org.mozilla.firefox"_s, u"Firefox"_s},
        {u"org.mozilla.firefoxbeta"_s, u"Firefox"_s},
        {u"org.mozilla.firefoxdeveloperedition"_s, u"Firefox"_s},
        {u"org.mozilla.aurora"_s, u"Firefox"_s},
        {u"org.mozilla.nightly"_s, u"Firefox"_s},
        {u"app.zen-browser.zen"_s, u"zen"_s},
    };
    return folders;
}

} // namespace

const QStringList &KnownBrowsers::all()
{
    static const QStringList identifiers = safariIdentifiers() + chromiumFolders().keys() + firefoxFolders().keys();
    return identifiers;
}

std::optional<BrowserFamily> KnownBrowsers::family(const QString &bundleID)
{
    if (safariIdentifiers().contains(bundleID))
        return BrowserFamily::safari;
    if (chromiumFolders().contains(bundleID))
        return BrowserFamily::chromium;
    if (firefoxFolders().contains(bundleID))
        return BrowserFamily::firefox;
    return std::nullopt;
}

std::optional<QString> KnownBrowsers::dataFolder(const QString &bundleID)
{
    for (const FolderTable *folders : {&chromiumFolders(), &firefoxFolders()}) {
        if (const auto found = folders->constFind(bundleID); found != folders->constEnd())
            return *found;
    }
    return std::nullopt;
}

bool KnownBrowsers::isEdge(const QString &bundleID)
{
    return bundleID.startsWith(u"com.microsoft.edgemac");
}

} // namespace vantrel
