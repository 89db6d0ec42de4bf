#pragma once

#include "Platform/Linux/ProcessHandle.h"

#include <QSocketNotifier>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace vantrel {

/// The processes of browsers that run, by the data folders that they use. Main thread only.
class RunningInstances final {
public:
    /// A process that used the folders has ended. Called from the event loop.
    using Ended = std::function<void(const QStringList &folders)>;

    explicit RunningInstances(Ended ended) : ended_(std::move(ended)) {}

    /// The process uses the folder. One that is known counts once, one that has ended not at all: its end was told, or
    /// nothing was told of it.
    void add(const QString &folder, ProcessHandle process);

    [[nodiscard]] bool isRunning(const QString &folder) const;

private:
    struct Instance {
        QStringList folders;
        ProcessHandle process;
        std::unique_ptr<QSocketNotifier> notifier;
    };

    void end(const Instance *instance);

    Ended ended_;
    std::vector<std::unique_ptr<Instance>> instances_;
};

} // namespace vantrel
