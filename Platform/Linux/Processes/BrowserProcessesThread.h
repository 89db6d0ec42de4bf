#pragma once

#include "Platform/Linux/Processes/BrowserProcesses.h"

#include <QThread>

#include <memory>

namespace vantrel {

/// BrowserProcesses on a thread of its own: what it reads lies in browsers' folders, which may be slow. Main thread
/// only.
class BrowserProcessesThread final : public RunningApplications {
public:
    /// As for BrowserProcesses; `data` and `log` are used on the other thread.
    BrowserProcessesThread(const BrowserData &data, const QDBusConnection &bus, const SingletonContext &context,
                           LogSink &log);
    ~BrowserProcessesThread() override;
    Q_DISABLE_COPY_MOVE(BrowserProcessesThread)

    [[nodiscard]] bool isRunning(const QString &bundleID) const override;
    void watch(const QStringList &bundleIDs, Terminated terminated) override;

private:
    QThread thread_;
    /// Lives on the thread and stands for it. Waits there for what it is asked.
    std::unique_ptr<QObject> host_;
    /// Made, used and destroyed on the thread.
    std::unique_ptr<BrowserProcesses> processes_;
    /// Owns reports that are due on the main thread.
    QObject reports_;
};

} // namespace vantrel
