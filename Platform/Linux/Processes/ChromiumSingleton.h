#pragma once

#include "Platform/Linux/ProcessHandle.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

/// Which process uses the data folder of a Chromium browser. One does so for all profiles; Chromium's
/// `ProcessSingleton` sees to that with the links "SingletonLock" and "SingletonSocket" in the folder.
namespace vantrel {

/// What the links are judged by.
struct SingletonContext {
    /// This machine's, as processes that share a home folder between machines tell themselves apart.
    QString hostName;
    /// $XDG_RUNTIME_DIR
    QString runtimeDirectory;

    [[nodiscard]] static SingletonContext current();
};

/// What a lock says.
struct SingletonLock {
    QString hostName;
    /// In a sandbox, the number that the process has there.
    pid_t process = 0;

    friend bool operator==(const SingletonLock &, const SingletonLock &) = default;
};

/// The destination of the link "SingletonLock", "HOST-PROCESS"; none when it is something else.
[[nodiscard]] std::optional<SingletonLock> parseSingletonLock(const QString &destination);

/// Where the socket to which "SingletonSocket" leads may be: a Flatpak has a folder for temporary files of its own. The
/// likeliest place first.
[[nodiscard]] QStringList singletonSocketPlaces(const QString &destination, const QString &dataFolder,
                                                const QString &runtimeDirectory);

/// The Flatpak application whose data is in the folder; empty for all others.
[[nodiscard]] QString flatpakApplication(const QString &dataFolder);

/// How a data folder is used. The links outlive their process when it is killed, and its number may by then belong to
/// another one.
struct SingletonState {
    /// The lock is this machine's, and may be that of a process which starts and can't be told yet.
    bool isLocked = false;
    /// None also when the process can't be told: that of a Flatpak whose socket isn't reachable has another number
    /// here than in its lock.
    std::optional<ProcessHandle> process;
};

/// Reads the links, and connects to the socket for the time of this call. Doesn't block and changes nothing.
[[nodiscard]] SingletonState singletonState(const QString &dataFolder, const SingletonContext &context);

} // namespace vantrel
