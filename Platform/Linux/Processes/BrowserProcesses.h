#pragma once

#include "Platform/BrowserData.h"
#include "Platform/Linux/Processes/ChromiumSingleton.h"
#include "Platform/Linux/Processes/FirefoxBusNames.h"
#include "Platform/Linux/Processes/FolderWatch.h"
#include "Platform/Linux/Processes/RunningInstances.h"
#include "Platform/RunningApplications.h"

#include <QHash>
#include <QMultiHash>
#include <QObject>
#include <QSet>

#include <memory>

namespace vantrel {

/// Which browsers run, by the locks in their data folders and by names on the session bus; that they end, by their
/// processes. Only browsers that are installed when `watch` is called are watched. It reads files of the browsers; all
/// of it belongs to the thread on which it was made.
class BrowserProcesses final : public RunningApplications {
public:
    /// `bus` is the session's; without a connection, profiles' folders are watched instead. `data` and `log` must
    /// outlive it.
    BrowserProcesses(const BrowserData &data, const QDBusConnection &bus, SingletonContext context, LogSink &log);

    /// Looks at the locks now, so that it is right also when an event is still to come.
    [[nodiscard]] bool isRunning(const QString &bundleID) const override;
    void watch(const QStringList &bundleIDs, Terminated terminated) override;

private:
    [[nodiscard]] QStringList dataFolders(const QString &bundleID) const;
    void takeCreation(const QString &folder, QByteArrayView name);
    void takeEnd(const QStringList &folders);
    void report(const QStringList &bundleIDs) const;

    void lookForChromium(const QString &dataFolder);
    void lookForFirefox(const QString &dataFolder);
    void followFirefoxFolders();
    void followProfiles(const QString &dataFolder);
    void takeBusName(const QString &name);

    const BrowserData &data_;
    SingletonContext context_;
    QStringList bundleIDs_;
    QHash<QString, QStringList> dataFolders_;
    QSet<QString> chromiumFolders_;
    QSet<QString> firefoxFolders_;
    /// Data folders by folders of profiles that are followed.
    QMultiHash<QString, QString> ownersOfProfiles_;
    /// Chromium's data folders with a lock whose process isn't known.
    QSet<QString> undecided_;
    RunningInstances instances_;
    FolderWatch folders_;
    FirefoxBusNames busNames_;
    /// Shared with none but a report that goes on while this object is destroyed.
    std::shared_ptr<const Terminated> terminated_;
    /// Owns reports that are due.
    QObject reports_;
};

} // namespace vantrel
