#pragma once

#include "Platform/Linux/Processes/BusEnd.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QString>

#include <sys/types.h>

#include <functional>
#include <memory>

namespace vantrel {

/// The names that Firefox browsers come to own on the session bus. That they go again says less than their process'
/// end, before which files may still be written. Main thread only; no call waits for the
/// bus, and none answers once this object is gone.
class FirefoxBusNames final {
public:
    struct Listener {
        /// Called for names that exist already as well; may be called twice for one owner.
        std::function<void(const QString &name)> appeared;
        /// The bus is gone, and with it all further news.
        std::function<void()> lost;
    };

    FirefoxBusNames(QDBusConnection bus, Listener listener);

    /// False when there is no bus; nothing is called then.
    [[nodiscard]] bool start();

    /// Answers unless the name has no owner any more.
    void askProcess(const QString &name, std::function<void(pid_t process)> answer);

private:
    QDBusConnection bus_;
    Listener listener_;
    std::unique_ptr<QDBusServiceWatcher> watcher_;
    std::unique_ptr<BusEnd> end_;
};

} // namespace vantrel
