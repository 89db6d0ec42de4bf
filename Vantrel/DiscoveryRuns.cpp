#include "Vantrel/DiscoveryRuns.h"

#include "Vantrel/InstalledBrowsers.h"
#include "VantrelKit/KnownBrowsers.h"
#include "VantrelKit/Paths.h"

#include <QCoreApplication>
#include <QtConcurrentRun>

#include <algorithm>

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(DiscoveryRuns)
};

bool isRead(const QString &bundleID)
{
    const auto family = KnownBrowsers::family(bundleID);
    return family && family != BrowserFamily::safari;
}

} // namespace

DiscoveryRuns::DiscoveryRuns(ProfileStore &store, Environment environment, ProfileReader reader)
    : store_(store),
      environment_(environment),
      reader_(std::move(reader))
{
}

DiscoveryRuns::~DiscoveryRuns()
{
    pool_.waitForDone();
}

void DiscoveryRuns::start()
{
    if (!store_.begin())
        return;
    store_.load();
    store_.setBrowsers(installedBrowsers(environment_.workspace, KnownBrowsers::all()));
    discoverAll();
    QStringList followed;
    for (const Browser &browser : store_.browsers()) {
        if (isRead(browser.bundleID))
            followed.append(browser.bundleID);
    }
    environment_.runningApplications.watch(followed, [this](const QString &bundleID, bool isRunning) {
        // What a browser has written is complete once the last of its processes has ended.
        if (!isRunning)
            discoverBrowser(bundleID);
    });
}

void DiscoveryRuns::discoverAll()
{
    discover(store_.browsers());
}

void DiscoveryRuns::discoverBrowser(const QString &bundleID)
{
    if (const Browser *browser = installed(bundleID))
        discover({*browser});
}

const Browser *DiscoveryRuns::installed(const QString &bundleID) const
{
    const QList<Browser> &browsers = store_.browsers();
    const auto browser = std::ranges::find(browsers, bundleID, &Browser::bundleID);
    return browser == browsers.end() ? nullptr : &*browser;
}

void DiscoveryRuns::discover(const QList<Browser> &browsers)
{
    QList<Browser> free;
    for (const Browser &browser : browsers) {
        if (!isRead(browser.bundleID))
            continue;
        if (reading_.contains(browser.bundleID))
            readAgain_.insert(browser.bundleID);
        else
            free.append(browser);
        reading_.insert(browser.bundleID);
    }
    if (free.isEmpty())
        return;
    const auto read = [reader = reader_, &data = environment_.browserData, free] {
        return discoverBrowsers(reader, data, free);
    };
    QtConcurrent::run(&pool_, read).then(this, [this](const DiscoveryResults &results) {
        // When all is read by now this is called at once, and who starts a run isn't told of its end from within.
        QMetaObject::invokeMethod(this, [this, results] { finish(results); }, Qt::QueuedConnection);
    });
}

void DiscoveryRuns::finish(const DiscoveryResults &results)
{
    QStringList again;
    for (auto result = results.keyBegin(); result != results.keyEnd(); ++result) {
        reading_.remove(*result);
        if (readAgain_.remove(*result))
            again.append(*result);
    }
    store_.apply(results);
    for (const QString &bundleID : std::as_const(again))
        discoverBrowser(bundleID);
    if (isIdle())
        Q_EMIT idle();
}

bool DiscoveryRuns::canRequestAccess(const QString &bundleID) const
{
    return environment_.folderAccess != nullptr && store_.accessDenied().contains(bundleID) &&
           KnownBrowsers::dataFolder(bundleID).has_value();
}

void DiscoveryRuns::requestAccess(const QString &bundleID)
{
    const auto folder = reader_.dataFolder(bundleID);
    const Browser *browser = installed(bundleID);
    if (!canRequestAccess(bundleID) || !folder || !browser)
        return;
    //: Open panel message. First placeholder: a browser's name; second: its data folder's name. 'Grant Access' must
    //: match the panel's button.
    const QString message =
        Texts::tr("macOS asks for your permission before Vantrel reads %1's profiles. Select the “%2” "
                  "folder and click Grant Access.")
            .arg(browser->name, lastPathComponent(*folder));
    //: Open panel button that lets Vantrel read a browser's profiles.
    const QString button = Texts::tr("Grant Access");
    ask({*folder, message, button}, bundleID);
}

QCoro::Task<> DiscoveryRuns::ask(FolderAccess::Panel panel, QString bundleID)
{
    // In a variable of its own: g++ 12 never frees the coroutine when the condition itself waits.
    const bool isGranted = co_await environment_.folderAccess->ask(panel);
    if (isGranted)
        discoverBrowser(bundleID);
}

bool DiscoveryRuns::canSearchSafari(const QString &bundleID) const
{
    const Browser *browser = installed(bundleID);
    return environment_.safari != nullptr && browser != nullptr && browser->family == BrowserFamily::safari &&
           !store_.searching().contains(bundleID);
}

void DiscoveryRuns::searchSafari(const QString &bundleID)
{
    if (canSearchSafari(bundleID))
        search(*installed(bundleID));
}

QCoro::Task<> DiscoveryRuns::search(Browser safari)
{
    if (!store_.beginSafariSearch(safari.bundleID))
        co_return;
    const auto found = co_await environment_.safari->findProfiles(safari);
    store_.endSafariSearch(safari.bundleID, found);
}

} // namespace vantrel
