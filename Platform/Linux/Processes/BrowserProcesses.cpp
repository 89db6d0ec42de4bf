#include "Platform/Linux/Processes/BrowserProcesses.h"

#include "Platform/Linux/Processes/FirefoxBusName.h"
#include "Platform/Linux/Processes/FirefoxProfileLock.h"
#include "VantrelKit/KnownBrowsers.h"

#include <QFileInfo>

#include <algorithm>

namespace vantrel {
namespace {

bool isFirefox(const QString &bundleID)
{
    return KnownBrowsers::family(bundleID) == BrowserFamily::firefox;
}

bool isUsedByFirefox(const QString &dataFolder)
{
    return std::ranges::any_of(firefoxProfileFolders(dataFolder),
                               [](const QString &profile) { return profileLockHolder(profile).has_value(); });
}

bool isNamed(const QString &profile, const QString &busName)
{
    QStringList paths = pathsOfProfile(profile);
    paths.append(QFileInfo(profile).canonicalFilePath());
    return std::ranges::any_of(paths, [&busName](const QString &path) { return isBusNameOfPath(busName, path); });
}

/// The profile folder in the data folder that the name on the bus stands for; empty for none.
QString namedProfile(const QString &dataFolder, const QString &busName)
{
    const QStringList profiles = firefoxProfileFolders(dataFolder);
    const auto profile =
        std::ranges::find_if(profiles, [&busName](const QString &folder) { return isNamed(folder, busName); });
    return profile == profiles.end() ? QString() : *profile;
}

} // namespace

BrowserProcesses::BrowserProcesses(const BrowserData &data, const QDBusConnection &bus, SingletonContext context,
                                   LogSink &log)
    : data_(data),
      context_(std::move(context)),
      instances_([this](const QStringList &folders) { takeEnd(folders); }),
      folders_([this](const QString &folder, QByteArrayView name) { takeCreation(folder, name); }, log),
      busNames_(bus, {.appeared = [this](const QString &name) { takeBusName(name); },
                      .lost = [this] { followFirefoxFolders(); }})
{
}

bool BrowserProcesses::isRunning(const QString &bundleID) const
{
    return std::ranges::any_of(dataFolders(bundleID), [this, &bundleID](const QString &folder) {
        if (instances_.isRunning(folder))
            return true;
        return isFirefox(bundleID) ? isUsedByFirefox(folder) : singletonState(folder, context_).process.has_value();
    });
}

void BrowserProcesses::watch(const QStringList &bundleIDs, Terminated terminated)
{
    terminated_ = std::make_shared<const Terminated>(std::move(terminated));
    bundleIDs_ = bundleIDs;
    bundleIDs_.removeDuplicates();
    for (const QString &bundleID : std::as_const(bundleIDs_)) {
        const QStringList folders = dataFolders(bundleID);
        dataFolders_.insert(bundleID, folders);
        for (const QString &folder : folders)
            (isFirefox(bundleID) ? firefoxFolders_ : chromiumFolders_).insert(folder);
    }
    // Each is looked at once its news come, so that no start falls between.
    for (const QString &folder : std::as_const(chromiumFolders_)) {
        folders_.follow(folder);
        lookForChromium(folder);
    }
    if (!firefoxFolders_.isEmpty() && !busNames_.start())
        followFirefoxFolders();
    for (const QString &folder : std::as_const(firefoxFolders_))
        lookForFirefox(folder);
}

QStringList BrowserProcesses::dataFolders(const QString &bundleID) const
{
    if (const auto known = dataFolders_.constFind(bundleID); known != dataFolders_.constEnd())
        return *known;
    QStringList paths;
    for (const BrowserDataFolder &folder : data_.dataFolders(bundleID))
        paths.append(folder.path);
    return paths;
}

void BrowserProcesses::takeCreation(const QString &folder, QByteArrayView name)
{
    // A running Chromium makes files in the folder all the time. Its lock comes before the socket that proves whose it
    // is; until that is known, every new file is a reason to look again.
    if (chromiumFolders_.contains(folder)) {
        if (name.isEmpty() || name == "SingletonLock" || undecided_.contains(folder))
            lookForChromium(folder);
        return;
    }
    if (firefoxFolders_.contains(folder))
        followProfiles(folder);
    // Firefox makes this link anew at each start, once it holds the lock proper.
    if (!name.isEmpty() && name != "lock")
        return;
    for (const QString &dataFolder : ownersOfProfiles_.values(folder)) {
        if (auto process = profileLockHolder(folder))
            instances_.add(dataFolder, *std::move(process));
    }
}

void BrowserProcesses::takeEnd(const QStringList &folders)
{
    QStringList ended;
    for (const QString &bundleID : std::as_const(bundleIDs_)) {
        const QStringList used = dataFolders_.value(bundleID);
        if (std::ranges::any_of(folders, [&used](const QString &folder) { return used.contains(folder); }))
            ended.append(bundleID);
    }
    // Not from here: whoever is told may destroy this object, of which more is still at work.
    QMetaObject::invokeMethod(&reports_, [this, ended] { report(ended); }, Qt::QueuedConnection);
}

void BrowserProcesses::report(const QStringList &bundleIDs) const
{
    const std::weak_ptr<const Terminated> listener = terminated_;
    for (const QString &bundleID : bundleIDs) {
        if (const auto terminated = listener.lock())
            (*terminated)(bundleID, isRunning(bundleID));
    }
}

void BrowserProcesses::lookForChromium(const QString &dataFolder)
{
    SingletonState state = singletonState(dataFolder, context_);
    if (state.process)
        instances_.add(dataFolder, *std::move(state.process));
    if (state.isLocked && !state.process)
        undecided_.insert(dataFolder);
    else
        undecided_.remove(dataFolder);
}

void BrowserProcesses::lookForFirefox(const QString &dataFolder)
{
    for (const QString &profile : firefoxProfileFolders(dataFolder)) {
        if (auto process = profileLockHolder(profile))
            instances_.add(dataFolder, *std::move(process));
    }
}

void BrowserProcesses::followFirefoxFolders()
{
    for (const QString &folder : std::as_const(firefoxFolders_)) {
        folders_.follow(folder);
        followProfiles(folder);
    }
}

void BrowserProcesses::followProfiles(const QString &dataFolder)
{
    for (const QString &profile : firefoxProfileFolders(dataFolder)) {
        if (ownersOfProfiles_.contains(profile, dataFolder))
            continue;
        ownersOfProfiles_.insert(profile, dataFolder);
        folders_.follow(profile);
        // It may be in use already.
        if (auto process = profileLockHolder(profile))
            instances_.add(dataFolder, *std::move(process));
    }
}

void BrowserProcesses::takeBusName(const QString &name)
{
    QStringList unlocked;
    for (const QString &folder : std::as_const(firefoxFolders_)) {
        const QString profile = namedProfile(folder, name);
        if (profile.isEmpty())
            continue;
        // Better than what the bus says: that is a proxy's process when the browser is in a sandbox.
        if (auto process = profileLockHolder(profile))
            instances_.add(folder, *std::move(process));
        else
            unlocked.append(folder);
    }
    if (unlocked.isEmpty())
        return;
    busNames_.askProcess(name, [this, unlocked](pid_t number) {
        for (const QString &folder : unlocked) {
            if (auto process = ProcessHandle::open(number))
                instances_.add(folder, *std::move(process));
        }
    });
}

} // namespace vantrel
