#include "Tests/Platform/Linux/Search/SearchFixture.h"

#include <QDBusPendingCall>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace vantrel::test {
namespace {

constexpr int millisecondsAllowed = 15000;

} // namespace

SearchFixture::SearchFixture()
    : app_(QDBusConnection::connectToBus(bus_.address(), u"app"_s)),
      desktop_(QDBusConnection::connectToBus(bus_.address(), u"desktop"_s))
{
    service_.start(answers_);
    EXPECT_EQ(application_.start({}, QDeadlineTimer(millisecondsAllowed)), ApplicationInstance::Role::only);
}

SearchFixture::~SearchFixture()
{
    QDBusConnection::disconnectFromBus(u"app"_s);
    QDBusConnection::disconnectFromBus(u"desktop"_s);
}

QString SearchFixture::call(const QString &method, const QStringList &arguments)
{
    return gdbus(u"call"_s, QStringList{u"--method"_s, method, u"--"_s} + arguments);
}

QString SearchFixture::gdbus(const QString &command, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(u"gdbus"_s,
                  QStringList{command, u"--address"_s, bus_.address(), u"--dest"_s, ActivationMessage::busName(),
                              u"--object-path"_s, ActivationMessage::objectPath()} +
                      arguments);
    const bool hasEnded =
        QTest::qWaitFor([&process] { return process.state() == QProcess::NotRunning; }, millisecondsAllowed);
    EXPECT_TRUE(hasEnded);
    EXPECT_NE(process.error(), QProcess::FailedToStart) << "Install the package libglib2.0-bin.";
    return QString::fromUtf8(process.readAll()).trimmed();
}

QDBusPendingCall SearchFixture::asyncCall(const QString &interface, const QString &method,
                                          const QVariantList &arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(ActivationMessage::busName(), ActivationMessage::objectPath(),
                                                          interface, method);
    message.setArguments(arguments);
    return desktop_.asyncCall(message, millisecondsAllowed);
}

} // namespace vantrel::test
