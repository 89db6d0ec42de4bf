#pragma once

#include "Platform/Linux/Processes/BrowserProcesses.h"
#include "Tests/Contract/RunningApplicationsContract.h"
#include "Tests/Fakes/FakeBrowserData.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Platform/Linux/Processes/StandIn.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QCoreApplication>
#include <QDBusConnection>

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace vantrel::test {

inline const QString hostName = QStringLiteral("this-host");

/// A connection to no bus.
[[nodiscard]] inline QDBusConnection noBus()
{
    return QDBusConnection(QStringLiteral("no bus"));
}

/// Browsers' data in a folder of its own, stand-ins that use it, and what is told of them.
class ProcessesFixture : public testing::Test {
protected:
    explicit ProcessesFixture(const QDBusConnection &bus = noBus())
    {
        data_.setFolder(chrome, folder_.path(QStringLiteral("chrome")));
        data_.setFolder(brave, folder_.path(QStringLiteral("brave")));
        create(bus);
    }

    void create(const QDBusConnection &bus)
    {
        processes_.emplace(data_, bus, SingletonContext{hostName, folder_.path(QStringLiteral("runtime"))}, log_);
    }

    void watch(const QStringList &bundleIDs)
    {
        processes_->watch(bundleIDs, [this](const QString &bundleID, bool /*isRunning*/) { told_.append(bundleID); });
    }

    [[nodiscard]] bool isRunning(const QString &bundleID) const { return processes_->isRunning(bundleID); }

    /// Starts what uses the data folder "chrome", by default reachable through a socket.
    [[nodiscard]] std::unique_ptr<StandIn> startChrome(const QString &sockets = QStringLiteral("sockets")) const
    {
        return start(QStringLiteral("chrome"), sockets);
    }

    [[nodiscard]] std::unique_ptr<StandIn> start(const QString &dataFolder, const QString &sockets) const
    {
        const QString place = sockets == QStringLiteral("-") ? sockets : folder_.makeFolder(sockets);
        return std::make_unique<StandIn>(
            QStringList{QStringLiteral("chromium"), folder_.path(dataFolder), hostName, place});
    }

    /// Everything that was told since the last call. An end that is always told is brought about and awaited, so that
    /// what should be told and what shouldn't has come by then.
    [[nodiscard]] QStringList told()
    {
        QCoreApplication::processEvents();
        const auto last = start(QStringLiteral("brave"), QStringLiteral("brave sockets"));
        QCoreApplication::processEvents();
        last->kill();
        EXPECT_TRUE(waitUntil([this] { return told_.contains(brave); })) << "Nothing is told.";
        told_.removeAll(brave);
        return std::exchange(told_, QStringList());
    }

    [[nodiscard]] bool isTold(const QString &bundleID)
    {
        return waitUntil([this, &bundleID] { return told_.contains(bundleID); });
    }

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};

protected:
    TemporaryFolder folder_;
    FakeBrowserData data_;
    FakeLog log_;
    QStringList told_;
    std::optional<BrowserProcesses> processes_;
};

} // namespace vantrel::test
