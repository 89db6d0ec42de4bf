#include "Platform/Linux/Instance/LinuxApplicationInstance.h"

#include "Tests/Contract/ApplicationInstanceContract.h"
#include "Tests/Platform/Beside.h"
#include "Tests/Platform/Linux/Instance/AnotherUser.h"
#include "Tests/Platform/Linux/Instance/InstanceSession.h"
#include "Tests/Platform/Linux/PrivateBus.h"

#include <QDir>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Role = ApplicationInstance::Role;
using Result = std::expected<Role, PlatformError>;

/// Processes that share a folder, and no bus.
class SocketSystem {
public:
    std::unique_ptr<ApplicationInstance> process()
    {
        return std::make_unique<LinuxApplicationInstance>(QDBusConnection(QString()), folder_.path(u"app/socket"_s));
    }

    Result startAnother(const InstanceRequest &request)
    {
        return test::beside([this, request] { return start(request, std::chrono::seconds(10)); });
    }

    Result startWhileInstanceHangs(const InstanceRequest &request)
    {
        return start(request, std::chrono::milliseconds(200));
    }

private:
    Result start(const InstanceRequest &request, std::chrono::milliseconds patience)
    {
        LinuxApplicationInstance other(QDBusConnection(QString()), folder_.path(u"app/socket"_s), patience);
        return other.start(request, [](const InstanceRequest &) { ADD_FAILURE(); });
    }

    test::TemporaryFolder folder_;
};

/// Processes that share a bus, and no folder.
class BusSystem {
public:
    ~BusSystem()
    {
        for (int number = 1; number <= count_; ++number)
            QDBusConnection::disconnectFromBus(name(number));
    }

    std::unique_ptr<ApplicationInstance> process()
    {
        const int number = ++count_;
        return std::make_unique<LinuxApplicationInstance>(connection(number), socketPath(number));
    }

    Result startAnother(const InstanceRequest &request)
    {
        const int number = ++count_;
        return test::beside([this, request, number] { return start(request, number, std::chrono::seconds(10)); });
    }

    Result startWhileInstanceHangs(const InstanceRequest &request)
    {
        return start(request, ++count_, std::chrono::milliseconds(200));
    }

private:
    static QString name(int number) { return u"process-%1"_s.arg(number); }
    QDBusConnection connection(int number) { return QDBusConnection::connectToBus(bus_.address(), name(number)); }
    QString socketPath(int number) { return folder_.makeFolder(u"runtime-%1"_s.arg(number)) + u"/app/socket"_s; }

    Result start(const InstanceRequest &request, int number, std::chrono::milliseconds patience)
    {
        LinuxApplicationInstance other(connection(number), socketPath(number), patience);
        return other.start(request, [](const InstanceRequest &) { ADD_FAILURE(); });
    }

    test::TemporaryFolder folder_;
    test::PrivateBus bus_;
    int count_ = 0;
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Socket, ApplicationInstanceContract, SocketSystem);
INSTANTIATE_TYPED_TEST_SUITE_P(Bus, ApplicationInstanceContract, BusSystem);

} // namespace test

namespace {

class InstanceProcesses : public testing::Test {
protected:
    static InstanceRequest open(const QStringList &links)
    {
        return {.kind = InstanceRequest::Kind::open, .links = links};
    }

    std::expected<bool, PlatformError> send(const InstanceRequest &request)
    {
        return InstanceClient(session_.socketPath(), std::chrono::seconds(10)).send(request);
    }

    QProcess &startInstance()
    {
        QProcess &program = session_.start({});
        EXPECT_EQ(session_.nextReport(), session_.report(u"only"_s));
        return program;
    }

    test::InstanceSession session_;

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};
};

TEST_F(InstanceProcesses, ASecondProcessHandsItsLinksOverAndEnds)
{
    startInstance();
    const QStringList links{u"vantrel://one"_s, u"not a link"_s, u""_s, u"vantrel://ü/%20&"_s};
    QProcess &second = session_.start(links);
    // The answer comes before the request is handled, so that the two report in any order.
    const QList<QJsonArray> reports{session_.nextReport(), session_.nextReport()};
    EXPECT_TRUE(reports.contains(session_.report(open(links))));
    EXPECT_TRUE(reports.contains(session_.report(u"second"_s, links)));
    EXPECT_TRUE(second.waitForFinished(10000));
    EXPECT_EQ(second.exitCode(), 0);
}

TEST_F(InstanceProcesses, OfManyStartsAtOnceOneIsTheInstanceAndGetsTheRequestsOfAllOthers)
{
    constexpr int count = 20;
    for (int round = 0; round < 3; ++round) {
        session_.hold();
        QSet<QString> links;
        for (int number = 0; number < count; ++number) {
            const QString link = u"vantrel://%1/%2"_s.arg(round).arg(number);
            links.insert(link);
            session_.start({u"--wait"_s, link});
        }
        for (int number = 0; number < count; ++number)
            ASSERT_EQ(session_.nextReport(), QJsonArray{u"ready"_s});
        session_.letGo();
        QSet<QString> requested;
        QSet<QString> handedOver;
        QStringList instances;
        for (int number = 0; number < 2 * count - 1; ++number) {
            const QJsonArray report = session_.nextReport();
            const bool isRequest = report.at(0) == "request"_L1;
            const QString link = report.at(isRequest ? 2 : 1).toArray().at(0).toString();
            if (isRequest)
                requested.insert(link);
            else if (report.at(0) == "second"_L1)
                handedOver.insert(link);
            else if (report.at(0) == "only"_L1)
                instances.append(link);
            else
                FAIL() << QJsonDocument(report).toJson().toStdString();
        }
        ASSERT_EQ(instances.size(), 1);
        links.remove(instances.first());
        EXPECT_EQ(requested, links);
        EXPECT_EQ(handedOver, links);
        EXPECT_TRUE(send({.kind = InstanceRequest::Kind::action, .action = u"quit"_s}).value_or(false));
        EXPECT_EQ(session_.nextReport().at(3), "quit"_L1);
    }
}

TEST_F(InstanceProcesses, AKilledInstanceLeavesNothingInTheWay)
{
    QProcess &killed = startInstance();
    killed.kill();
    ASSERT_TRUE(killed.waitForFinished(10000));
    ASSERT_TRUE(QFileInfo::exists(session_.socketPath())) << "Nothing was left behind, which this test is about.";
    EXPECT_EQ(send({}), (std::expected<bool, PlatformError>(false)));
    startInstance();
    EXPECT_EQ(send(open({u"vantrel://again"_s})), (std::expected<bool, PlatformError>(true)));
    EXPECT_EQ(session_.nextReport(), session_.report(open({u"vantrel://again"_s})));
}

/// Whether a program has begun to watch a folder.
bool watches(const QProcess &program)
{
    const QDir descriptors(u"/proc/%1/fd"_s.arg(program.processId()));
    const auto entries = descriptors.entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    return std::any_of(entries.begin(), entries.end(), [](const QFileInfo &entry) {
        return QFile::symLinkTarget(entry.filePath()).endsWith(u"anon_inode:inotify"_s);
    });
}

class StartsBesideALockedInstance : public InstanceProcesses {
protected:
    StartsBesideALockedInstance()
    {
        EXPECT_TRUE(folder_.has_value() && lock_.has_value());
        EXPECT_TRUE(lock_->tryLock());
    }

    void startAndWaitFor(const QString &link)
    {
        const QProcess &program = session_.start({link});
        EXPECT_TRUE(QTest::qWaitFor([&] { return watches(program); }, 10000)) << "It doesn't wait.";
    }

    const QString path_ = QFileInfo(session_.socketPath()).path();
    std::expected<InstanceFolder, PlatformError> folder_ = InstanceFolder::make(path_);
    /// Held by an app in the middle of its start.
    std::expected<InstanceLock, PlatformError> lock_ = InstanceLock::create(*folder_, path_);
};

TEST_F(StartsBesideALockedInstance, WaitUntilItListens)
{
    startAndWaitFor(u"vantrel://early"_s);
    QList<InstanceRequest> requests;
    const auto listener =
        InstanceListener::create(*folder_, path_, [&](const InstanceRequest &request) { requests.append(request); });
    ASSERT_TRUE(listener.has_value());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !requests.isEmpty(); }, 10000));
    EXPECT_EQ(requests, QList<InstanceRequest>{open({u"vantrel://early"_s})});
    EXPECT_EQ(session_.nextReport(), session_.report(u"second"_s, {u"vantrel://early"_s}));
}

TEST_F(StartsBesideALockedInstance, FollowItWhenItEndsWithoutEverHavingListened)
{
    startAndWaitFor(u"vantrel://early"_s);
    lock_ = std::unexpected(PlatformError{});
    EXPECT_EQ(session_.nextReport(), session_.report(u"only"_s, {u"vantrel://early"_s}));
}

TEST_F(StartsBesideALockedInstance, GiveUpWhenItDoesNeither)
{
    LinuxApplicationInstance instance(QDBusConnection(QString()), session_.socketPath(),
                                      std::chrono::milliseconds(250));
    const Result role = instance.start({}, [](const InstanceRequest &) { ADD_FAILURE(); });
    EXPECT_EQ(role, Result(std::unexpected(PlatformError{u"Vantrel is starting or ending, but doesn't get on."_s})));
}

TEST_F(InstanceProcesses, WithoutARuntimeFolderTheyMeetInTheTemporaryOne)
{
    session_.variables().remove(u"XDG_RUNTIME_DIR"_s);
    EXPECT_TRUE(session_.socketPath().startsWith(session_.folder().path(u"temporary/"_s)));
    startInstance();
    EXPECT_EQ(send({}), (std::expected<bool, PlatformError>(true)));
    EXPECT_EQ(session_.nextReport(), session_.report(InstanceRequest{}));
}

TEST_F(InstanceProcesses, AnotherUsersFolderIsRefused)
{
    const test::ForeignFolder foreign;
    LinuxApplicationInstance instance(QDBusConnection(QString()), foreign.path() + u"/socket"_s);
    const Result role = instance.start({}, [](const InstanceRequest &) { ADD_FAILURE(); });
    ASSERT_FALSE(role.has_value());
    EXPECT_EQ(role.error().message,
              u"The folder %1 belongs to another user, so that it can't be trusted. Remove it and "
              "try again."_s.arg(foreign.path()));
}

TEST_F(InstanceProcesses, AnInstanceThatEndsTakesItsSocketWithIt)
{
    QProcess &program = startInstance();
    EXPECT_EQ(send({.kind = InstanceRequest::Kind::action, .action = u"quit"_s}),
              (std::expected<bool, PlatformError>(true)));
    EXPECT_TRUE(program.waitForFinished(10000));
    EXPECT_FALSE(QFileInfo::exists(session_.socketPath()));
    EXPECT_EQ(send({}), (std::expected<bool, PlatformError>(false)));
}

TEST_F(InstanceProcesses, AnAskerThatGaveUpIsNotServedLater)
{
    LinuxApplicationInstance instance(QDBusConnection(QString()), session_.socketPath());
    QList<InstanceRequest> requests;
    ASSERT_EQ(instance.start({}, [&](const InstanceRequest &request) { requests.append(request); }),
              Result(Role::only));
    // Nothing is handled meanwhile.
    EXPECT_FALSE(
        InstanceClient(session_.socketPath(), std::chrono::milliseconds(100)).send(open({u"late"_s})).has_value());
    EXPECT_EQ(test::beside([&] { return send(open({u"next"_s})); }), (std::expected<bool, PlatformError>(true)));
    EXPECT_EQ(requests, QList<InstanceRequest>{open({u"next"_s})});
}

} // namespace
} // namespace vantrel
