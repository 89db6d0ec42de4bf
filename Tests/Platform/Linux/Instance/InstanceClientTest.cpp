#include "Platform/Linux/Instance/InstanceClient.h"

#include "Platform/InstanceMessage.h"
#include "Platform/Linux/Instance/LocalSocket.h"
#include "Tests/Platform/Linux/Instance/AnotherUser.h"
#include "Tests/Platform/Linux/Instance/RawSocket.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <future>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr std::chrono::milliseconds patience{300};
constexpr qint64 farTooLong = 10000;

const InstanceRequest request{.kind = InstanceRequest::Kind::open, .links = {u"vantrel://one"_s}};

class InstanceClientTest : public testing::Test {
protected:
    [[nodiscard]] QString socketPath() const { return folder_.path(u"socket"_s); }

    [[nodiscard]] QString answer(std::chrono::milliseconds allowed = patience,
                                 const InstanceRequest &sent = request) const
    {
        QElapsedTimer time;
        time.start();
        const auto isTaken = InstanceClient(socketPath(), allowed).send(sent);
        EXPECT_LT(time.elapsed(), farTooLong);
        if (!isTaken)
            return isTaken.error().message;
        return *isTaken ? u"taken"_s : u"no app"_s;
    }

    /// What the client makes of an app that reads a line and then answers with `text`.
    [[nodiscard]] QString answerTo(const QByteArray &text, std::chrono::milliseconds allowed = patience)
    {
        const test::RawListener app(socketPath());
        auto client = std::async(std::launch::async, [&] { return answer(allowed); });
        const OwnedDescriptor connection = app.accept();
        received_ = test::receivedLine(connection);
        EXPECT_TRUE(test::sendAll(connection, text));
        return client.get();
    }

    const QString noAnswer = u"Vantrel is running, but doesn't answer."_s;
    test::TemporaryFolder folder_;
    QByteArray received_;
};

TEST_F(InstanceClientTest, SaysThatTheAppTookTheRequestOn)
{
    EXPECT_EQ(answerTo("{\"version\":1,\"accepted\":true}\n", std::chrono::seconds(5)), u"taken"_s);
    EXPECT_EQ(received_, InstanceMessage::line(request));
}

TEST_F(InstanceClientTest, SaysWhyTheAppRefuses)
{
    EXPECT_EQ(answerTo("{\"version\":1,\"accepted\":false,\"reason\":\"It is too late.\"}\n"),
              u"Vantrel is running, but refuses the request. It is too late."_s);
}

TEST_F(InstanceClientTest, FindsNoAppWhereNobodyListens)
{
    EXPECT_EQ(answer(), u"no app"_s);
    folder_.write(u"socket"_s);
    EXPECT_EQ(answer(), u"no app"_s) << "A file that is no socket.";
    EXPECT_TRUE(QFile::remove(socketPath()));
    {
        const test::RawListener killed(socketPath());
    }
    ASSERT_TRUE(QFileInfo::exists(socketPath()));
    EXPECT_EQ(answer(), u"no app"_s) << "A socket that a killed app left.";
    EXPECT_EQ(InstanceClient(folder_.path(u"no/such/socket"_s)).send(request),
              (std::expected<bool, PlatformError>(false)));
}

TEST_F(InstanceClientTest, GivesUpOnAnAppThatSaysNothing)
{
    const test::RawListener app(socketPath());
    EXPECT_EQ(answer(), noAnswer);
}

TEST_F(InstanceClientTest, GivesUpOnAnAppThatDoesNotReadALongRequest)
{
    const test::RawListener app(socketPath());
    EXPECT_EQ(answer(patience, {.kind = InstanceRequest::Kind::open, .links = {QString(1024 * 1024, u'a')}}), noAnswer);
}

TEST_F(InstanceClientTest, GivesUpOnAnAppWhoseQueueIsFull)
{
    const test::RawListener app(socketPath(), 0);
    const OwnedDescriptor waiting = test::connectedTo(socketPath());
    EXPECT_EQ(answer(), noAnswer);
}

TEST_F(InstanceClientTest, GivesUpOnHalfALineAndOnGarbage)
{
    EXPECT_EQ(answerTo("{\"version\":1,\"accep"), noAnswer);
    EXPECT_EQ(answerTo("hello\n"), noAnswer);
    EXPECT_EQ(answerTo(QByteArray(200 * 1024, 'x')), noAnswer);
}

TEST_F(InstanceClientTest, AsksAgainWhenAnAppEndsWithoutAnAnswer)
{
    const test::RawListener app(socketPath());
    auto client = std::async(std::launch::async, [&] { return answer(std::chrono::seconds(5)); });
    app.accept().close();
    const OwnedDescriptor second = app.accept();
    EXPECT_EQ(test::receivedLine(second), InstanceMessage::line(request));
    EXPECT_TRUE(test::sendAll(second, "{\"version\":1,\"accepted\":true}\n"));
    EXPECT_EQ(client.get(), u"taken"_s);
}

TEST_F(InstanceClientTest, GivesUpWhenTheAppNeverAnswersBeforeItCloses)
{
    const test::RawListener app(socketPath());
    auto client = std::async(std::launch::async, [&] { return answer(std::chrono::seconds(5)); });
    for (int time = 0; time < 3; ++time)
        app.accept().close();
    EXPECT_EQ(client.get(), noAnswer);
}

TEST_F(InstanceClientTest, ReadsTheRefusalOfAnAppThatStoppedReading)
{
    const test::RawListener app(socketPath());
    auto client = std::async(std::launch::async, [&] {
        return answer(std::chrono::seconds(5),
                      {.kind = InstanceRequest::Kind::open, .links = {QString(4000000, u'a')}});
    });
    {
        const OwnedDescriptor connection = app.accept();
        EXPECT_TRUE(LocalSocket::wait(connection.number(), POLLIN, QDeadlineTimer(farTooLong)));
        EXPECT_TRUE(test::sendAll(connection, "{\"version\":1,\"accepted\":false,\"reason\":\"Enough.\"}\n"));
    }
    EXPECT_EQ(client.get(), u"Vantrel is running, but refuses the request. Enough."_s);
}

TEST_F(InstanceClientTest, DoesNotEvenSendWhatIsTooLong)
{
    EXPECT_EQ(answer(patience, {.kind = InstanceRequest::Kind::open, .links = {QString(17 * 1024 * 1024, u'a')}}),
              u"The request is too long."_s);
}

TEST_F(InstanceClientTest, RefusesAnotherUsersFolder)
{
    const test::ForeignFolder foreign;
    const auto isTaken = InstanceClient(foreign.path() + u"/socket"_s).send(request);
    ASSERT_FALSE(isTaken.has_value());
    EXPECT_TRUE(isTaken.error().message.contains(u"belongs to another user"_s))
        << isTaken.error().message.toStdString();
}

TEST_F(InstanceClientTest, SocketsWorkInFoldersWithPathsOfAnyLength)
{
    const QString name = QString(200, u'n') + u'/' + QString(200, u'm');
    const QString path = folder_.makeFolder(name) + u"/socket"_s;
    EXPECT_EQ(InstanceClient(path).send(request), (std::expected<bool, PlatformError>(false)));
}

TEST(LocalSocket, KnowsTheUserAtTheOtherEnd)
{
    int ends[2] = {-1, -1};
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends), 0);
    const OwnedDescriptor one(ends[0]);
    const OwnedDescriptor other(ends[1]);
    EXPECT_TRUE(LocalSocket::peerIs(geteuid(), one.number()));
    EXPECT_FALSE(LocalSocket::peerIs(geteuid() + 1, one.number()));
    EXPECT_FALSE(LocalSocket::peerIs(geteuid(), -1));
}

TEST_F(InstanceClientTest, DoesNotTalkToAnotherUsersProgram)
{
    ASSERT_EQ(chmod(QFile::encodeName(folder_.path()).constData(), 0777), 0);
    const auto foreign = test::asAnotherUser([&] { return test::RawListener(socketPath()); });
    const QString refusal =
        u"What listens at %1 belongs to another user, so that it can't be trusted."_s.arg(socketPath());
    EXPECT_EQ(answer(), test::hasAnotherUser() ? refusal : noAnswer);
}

} // namespace
} // namespace vantrel
