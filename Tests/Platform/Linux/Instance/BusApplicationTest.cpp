#include "Platform/Linux/Instance/BusApplication.h"

#include "Platform/Linux/Instance/ActivationMessage.h"
#include "Platform/Linux/Instance/InstanceClient.h"
#include "Tests/Contract/ApplicationInstanceContract.h"
#include "Tests/Platform/Linux/Instance/InstanceSession.h"
#include "Tests/Platform/Linux/PrivateBus.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingCall>
#include <QFile>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Kind = InstanceRequest::Kind;

constexpr int millisecondsAllowed = 15000;

/// A session with a bus, which starts the program when its name is called.
class BusApplicationTest : public testing::Test {
protected:
    BusApplicationTest()
    {
        QFile installed(QStringLiteral(DESKTOP_FILES) + u"/app.kestrune.Vantrel.service"_s);
        EXPECT_TRUE(installed.open(QIODevice::ReadOnly));
        const QByteArray program = APP_PROGRAM;
        QByteArray service = installed.readAll();
        EXPECT_TRUE(service.contains(QByteArray("Exec=" + program + '\n')));
        session_.folder().write(u"runtime/dbus-1/services/app.kestrune.Vantrel.service"_s,
                                service.replace(program, INSTANCE_PROGRAM));
        bus_.emplace(session_.variables());
        connection_ = QDBusConnection::connectToBus(bus_->address(), u"desktop"_s);
        EXPECT_TRUE(connection_.isConnected());
    }

    ~BusApplicationTest() override
    {
        quit();
        QDBusConnection::disconnectFromBus(u"desktop"_s);
    }

    /// For programs that the bus started and that a test doesn't hold therefore.
    void quit() const
    {
        std::ignore = InstanceClient(session_.socketPath()).send({.kind = Kind::action, .action = u"quit"_s});
    }

    [[nodiscard]] static QDBusMessage startingCall(const InstanceRequest &request)
    {
        QDBusMessage message = ActivationMessage::call(request);
        message.setAutoStartService(true);
        return message;
    }

    [[nodiscard]] QDBusMessage reply(const QString &interface, const QString &method,
                                     const QVariantList &arguments = {}) const
    {
        QDBusMessage message = QDBusMessage::createMethodCall(ActivationMessage::busName(),
                                                              ActivationMessage::objectPath(), interface, method);
        message.setArguments(arguments);
        return connection_.call(message, QDBus::Block, millisecondsAllowed);
    }

    [[nodiscard]] bool isOwned() const
    {
        return connection_.interface()->isServiceRegistered(ActivationMessage::busName());
    }

    /// Runs gdbus against the bus. Its output.
    [[nodiscard]] QByteArray gdbus(const QString &command, const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(u"gdbus"_s,
                      QStringList{command, u"--address"_s, bus_->address(), u"--dest"_s, ActivationMessage::busName(),
                                  u"--object-path"_s, ActivationMessage::objectPath()} +
                          arguments);
        EXPECT_TRUE(process.waitForFinished(millisecondsAllowed)) << "Install the package libglib2.0-bin.";
        return process.readAll();
    }

    /// A program that uses the bus.
    void startInstance()
    {
        session_.variables().insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus_->address());
        session_.start({});
        ASSERT_EQ(session_.nextReport(), session_.report(u"only"_s));
    }

    test::InstanceSession session_;
    std::optional<test::PrivateBus> bus_;

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};

protected:
    QDBusConnection connection_{QString()};
};

TEST_F(BusApplicationTest, ACallStartsTheProgramAndArrives)
{
    const QList<InstanceRequest> requests{
        {.kind = Kind::activate, .activationToken = u"token"_s, .startupID = u"startup"_s},
        {.kind = Kind::open, .links = {u"vantrel://one"_s, u"no link"_s, u""_s}, .activationToken = u"token"_s},
        {.kind = Kind::action, .action = u"menu"_s, .startupID = u"startup"_s},
    };
    for (const InstanceRequest &request : requests) {
        ASSERT_FALSE(isOwned());
        const QDBusPendingCall call = connection_.asyncCall(startingCall(request), millisecondsAllowed);
        EXPECT_EQ(session_.nextReport(), session_.report(u"only"_s));
        EXPECT_EQ(session_.nextReport(), session_.report(request));
        EXPECT_TRUE(QTest::qWaitFor([&] { return call.isFinished(); }, millisecondsAllowed));
        EXPECT_FALSE(call.isError()) << call.error().message().toStdString();
        quit();
        EXPECT_EQ(session_.nextReport().at(3), "quit"_L1);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !isOwned(); }, millisecondsAllowed));
    }
}

TEST_F(BusApplicationTest, AllThatIsAskedWhileTheProgramStartsArrivesInOrder)
{
    QList<QJsonArray> expected;
    for (int number = 0; number < 10; ++number) {
        const QString text = QString::number(number);
        for (const InstanceRequest &request : {InstanceRequest{.kind = Kind::open, .links = {text}},
                                               InstanceRequest{.kind = Kind::action, .action = text},
                                               InstanceRequest{.kind = Kind::activate, .activationToken = text}}) {
            ASSERT_TRUE(connection_.send(startingCall(request)));
            expected.append(session_.report(request));
        }
    }
    EXPECT_EQ(session_.nextReport(), session_.report(u"only"_s));
    for (const QJsonArray &report : expected)
        EXPECT_EQ(session_.nextReport(), report);
}

TEST_F(BusApplicationTest, AnsweresOtherBusLibrariesAsTheyCall)
{
    startInstance();
    const QString data = u"{'activation-token': <'token'>, 'desktop-startup-id': <'startup'>, 'other': <uint32 7>}"_s;
    const QString interface = u"org.freedesktop.Application."_s;
    EXPECT_EQ(gdbus(u"call"_s, {u"--method"_s, interface + u"Activate"_s, data}), "()\n");
    EXPECT_EQ(gdbus(u"call"_s, {u"--method"_s, interface + u"Open"_s, u"['vantrel://a', 'b']"_s, data}), "()\n");
    EXPECT_EQ(gdbus(u"call"_s, {u"--method"_s, interface + u"ActivateAction"_s, u"settings"_s, u"[<'x'>]"_s, u"{}"_s}),
              "()\n");
    EXPECT_EQ(session_.nextReport(), session_.report({.activationToken = u"token"_s, .startupID = u"startup"_s}));
    EXPECT_EQ(session_.nextReport(), session_.report({.kind = Kind::open,
                                                      .links = {u"vantrel://a"_s, u"b"_s},
                                                      .activationToken = u"token"_s,
                                                      .startupID = u"startup"_s}));
    EXPECT_EQ(session_.nextReport(), session_.report({.kind = Kind::action, .action = u"settings"_s}));
}

TEST_F(BusApplicationTest, DescribesItsInterface)
{
    startInstance();
    const QByteArray description = gdbus(u"introspect"_s, {});
    for (const QByteArray line : {"interface org.freedesktop.Application {", "Activate(in  a{sv} platform_data);",
                                  "Open(in  as uris,", "ActivateAction(in  s action_name,", "in  av parameter,"})
        EXPECT_TRUE(description.contains(line)) << line.toStdString() << " is not in " << description.toStdString();
}

TEST_F(BusApplicationTest, RefusesOtherCallsAndGoesOn)
{
    startInstance();
    const QString interface = u"org.freedesktop.Application"_s;
    EXPECT_EQ(reply(interface, u"Activate"_s).errorName(), u"org.freedesktop.DBus.Error.InvalidArgs"_s);
    EXPECT_EQ(reply(interface, u"Open"_s, {u"text"_s, QVariantMap()}).errorName(),
              u"org.freedesktop.DBus.Error.InvalidArgs"_s);
    EXPECT_EQ(reply(interface, u"Close"_s).errorName(), u"org.freedesktop.DBus.Error.UnknownMethod"_s);
    for (const QString &other : {u"org.freedesktop.DBus.Properties"_s, u"org.example.Other"_s})
        EXPECT_EQ(reply(other, u"GetAll"_s, {interface}).type(), QDBusMessage::ErrorMessage) << other.toStdString();
    EXPECT_EQ(reply(interface, u"Activate"_s, {QVariantMap{{u"activation-token"_s, 7}}}).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(session_.nextReport(), session_.report(InstanceRequest{.activationToken = u"7"_s}));
}

TEST_F(BusApplicationTest, ASecondProcessInTheSameFolderLeavesTheNameAlone)
{
    startInstance();
    const QString owner = connection_.interface()->serviceOwner(ActivationMessage::busName());
    session_.start({u"vantrel://one"_s});
    QList<QJsonArray> reports{session_.nextReport(), session_.nextReport()};
    EXPECT_TRUE(reports.contains(session_.report(u"second"_s, {u"vantrel://one"_s})));
    EXPECT_EQ(connection_.interface()->serviceOwner(ActivationMessage::busName()).value(), owner);
}

TEST_F(BusApplicationTest, AProcessThatFindsTheNameTakenLeavesItsOwnFolderToOthers)
{
    startInstance();
    const QString first = session_.variables().value(u"XDG_RUNTIME_DIR"_s);
    session_.variables().insert(u"XDG_RUNTIME_DIR"_s, session_.folder().makeFolder(u"elsewhere"_s));
    session_.variables().insert(u"XDG_ACTIVATION_TOKEN"_s, u"unused"_s);
    QProcess &second = session_.start({u"vantrel://one"_s});
    const QList<QJsonArray> reports{session_.nextReport(), session_.nextReport()};
    EXPECT_TRUE(reports.contains(session_.report(u"second"_s, {u"vantrel://one"_s})));
    EXPECT_TRUE(reports.contains(session_.report({.kind = Kind::open, .links = {u"vantrel://one"_s}})));
    EXPECT_TRUE(second.waitForFinished(millisecondsAllowed));
    EXPECT_EQ(InstanceClient(session_.socketPath()).send({}), (std::expected<bool, PlatformError>(false)));
    session_.variables().insert(u"XDG_RUNTIME_DIR"_s, first);
}

TEST_F(BusApplicationTest, AfterAKillTheNextCallStartsAnotherInstance)
{
    startInstance();
    const QDBusReply<uint> process = connection_.interface()->servicePid(ActivationMessage::busName());
    ASSERT_GT(process.value(), 1U);
    ASSERT_EQ(kill(static_cast<pid_t>(process.value()), SIGKILL), 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !isOwned(); }, millisecondsAllowed));
    ASSERT_TRUE(connection_.send(startingCall({.kind = Kind::open, .links = {u"vantrel://again"_s}})));
    EXPECT_EQ(session_.nextReport(), session_.report(u"only"_s));
    EXPECT_EQ(session_.nextReport(), session_.report({.kind = Kind::open, .links = {u"vantrel://again"_s}}));
}

TEST_F(BusApplicationTest, WithABusThatDoesNotAnswerTheProcessIsTheInstanceAllTheSame)
{
    BusApplication unconnected(QDBusConnection(QString()), [](const InstanceRequest &) { ADD_FAILURE(); });
    EXPECT_EQ(unconnected.start({}, QDeadlineTimer(millisecondsAllowed)), ApplicationInstance::Role::only);
    bus_.reset();
    BusApplication abandoned(connection_, [](const InstanceRequest &) { ADD_FAILURE(); });
    EXPECT_EQ(abandoned.start({}, QDeadlineTimer(millisecondsAllowed)), ApplicationInstance::Role::only);
}

} // namespace
} // namespace vantrel
