#include "Platform/Linux/Processes/BrowserProcessesThread.h"

#include <utility>

namespace vantrel {

BrowserProcessesThread::BrowserProcessesThread(const BrowserData &data, const QDBusConnection &bus,
                                               const SingletonContext &context, LogSink &log)
    : host_(std::make_unique<QObject>())
{
    thread_.setObjectName(QStringLiteral("BrowserProcesses"));
    host_->moveToThread(&thread_);
    thread_.start();
    QMetaObject::invokeMethod(
        host_.get(),
        [this, &data, bus, context, &log] { processes_ = std::make_unique<BrowserProcesses>(data, bus, context, log); },
        Qt::QueuedConnection);
}

BrowserProcessesThread::~BrowserProcessesThread()
{
    QMetaObject::invokeMethod(host_.get(), [this] { processes_.reset(); }, Qt::BlockingQueuedConnection);
    thread_.quit();
    thread_.wait();
}

bool BrowserProcessesThread::isRunning(const QString &bundleID) const
{
    bool is = false;
    QMetaObject::invokeMethod(
        host_.get(), [this, &bundleID, &is] { is = processes_->isRunning(bundleID); }, Qt::BlockingQueuedConnection);
    return is;
}

void BrowserProcessesThread::watch(const QStringList &bundleIDs, Terminated terminated)
{
    auto report = [this, terminated = std::move(terminated)](const QString &bundleID, bool isRunning) {
        const auto tell = [terminated, bundleID, isRunning] { terminated(bundleID, isRunning); };
        QMetaObject::invokeMethod(&reports_, tell, Qt::QueuedConnection);
    };
    const auto begin = [this, bundleIDs, report = std::move(report)] { processes_->watch(bundleIDs, report); };
    QMetaObject::invokeMethod(host_.get(), begin, Qt::QueuedConnection);
}

} // namespace vantrel
