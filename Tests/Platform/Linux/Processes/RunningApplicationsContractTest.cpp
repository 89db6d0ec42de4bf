#include "Tests/Contract/RunningApplicationsContract.h"

#include "Platform/Linux/Processes/BrowserProcesses.h"
#include "Tests/Fakes/FakeBrowserData.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeRunningApplications.h"
#include "Tests/Platform/Linux/Processes/StandIn.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QDBusConnection>
#include <QMap>

#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class FakeSystem {
public:
    RunningApplications &applications() { return *applications_; }
    static QString first() { return test::chrome; }
    static QString second() { return test::firefox; }
    void start(const QString &bundleID) { applications_->start(bundleID); }
    void end(const QString &bundleID) { EXPECT_TRUE(applications_->end(bundleID)); }
    void destroyApplications() { applications_.reset(); }

private:
    std::optional<test::FakeRunningApplications> applications_{std::in_place};
};

/// Stand-ins for a Chromium browser with two data folders and for a Firefox browser with two profiles.
class ProcessSystem {
public:
    ProcessSystem()
    {
        data_.setFolders(first(), {{.path = folder_.path(u"chrome 1"_s)}, {.path = folder_.path(u"chrome 2"_s)}});
        data_.setFolder(second(), folder_.path(u"firefox"_s));
        const SingletonContext context{u"host"_s, folder_.path(u"runtime"_s)};
        applications_.emplace(data_, QDBusConnection(u"no bus"_s), context, log_);
    }

    RunningApplications &applications() { return *applications_; }
    static QString first() { return test::chrome; }
    static QString second() { return test::firefox; }

    void start(const QString &bundleID)
    {
        auto &instances = instances_[bundleID];
        const QString number = QString::number(instances.size() + 1);
        const QString sockets = folder_.makeFolder(u"sockets "_s + number);
        const QStringList chromium{u"chromium"_s, folder_.path(u"chrome "_s + number), u"host"_s, sockets};
        const QStringList firefox{u"firefox"_s, folder_.path(u"firefox/"_s + number), u"-"_s};
        instances.push_back(std::make_unique<test::StandIn>(bundleID == first() ? chromium : firefox));
    }

    void end(const QString &bundleID)
    {
        instances_[bundleID].back()->close();
        instances_[bundleID].pop_back();
    }

    void destroyApplications() { applications_.reset(); }

private:
    test::TemporaryFolder folder_;
    test::FakeBrowserData data_;
    test::FakeLog log_;
    std::map<QString, std::vector<std::unique_ptr<test::StandIn>>> instances_;
    std::optional<BrowserProcesses> applications_;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, RunningApplicationsContract, FakeSystem);
INSTANTIATE_TYPED_TEST_SUITE_P(Processes, RunningApplicationsContract, ProcessSystem);

} // namespace test
} // namespace vantrel
