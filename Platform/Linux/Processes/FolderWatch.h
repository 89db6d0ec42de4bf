#pragma once

#include "Platform/Linux/OwnedDescriptor.h"
#include "Platform/LogChannel.h"

#include <QByteArrayView>
#include <QHash>
#include <QSocketNotifier>
#include <QString>

#include <functional>
#include <memory>

namespace vantrel {

/// Tells what comes into folders, in the event loop. (QFileSystemWatcher would wake up at every change in them and say
/// only that there was one.) Main thread only.
class FolderWatch final {
public:
    /// `name` is that of what was created in `folder` or moved there; empty when anything may have come, as when the
    /// folder itself has.
    using Created = std::function<void(const QString &folder, QByteArrayView name)>;

    /// What can't be watched is said in the log, which must outlive it.
    FolderWatch(Created created, LogSink &log) : created_(std::move(created)), log_(log, QStringLiteral("Profiles")) {}

    /// Follows a folder that need not exist: until it does, what it will be in is watched. A folder that is followed
    /// already isn't followed twice.
    void follow(const QString &folder);

private:
    struct Place {
        int watch = -1;
        /// What is watched: the folder, or the nearest one above it that exists.
        QString path;
    };

    void open();
    void place(const QString &folder);
    [[nodiscard]] Place nearestWatch(const QString &folder) const;
    /// Ends a watch that nothing needs any more.
    void release(int watch);
    void read();
    void take(int watch, unsigned mask, QByteArrayView name);
    void takeCreation(const QString &folder, QByteArrayView name);
    void takeLoss();
    void placeAgain(const QString &folder);

    Created created_;
    LogChannel log_;
    OwnedDescriptor inotify_;
    std::unique_ptr<QSocketNotifier> notifier_;
    QHash<QString, Place> places_;
};

} // namespace vantrel
