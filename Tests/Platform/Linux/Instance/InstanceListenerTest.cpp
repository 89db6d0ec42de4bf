#include "Platform/Linux/Instance/InstanceListener.h"

#include "Platform/InstanceMessage.h"
#include "Platform/Linux/Instance/InstanceClient.h"
#include "Tests/Contract/ApplicationInstanceContract.h"
#include "Tests/Platform/Beside.h"
#include "Tests/Platform/Linux/Instance/AnotherUser.h"
#include "Tests/Platform/Linux/Instance/RawSocket.h"

#include <QDir>

#include <sys/resource.h>
#include <sys/stat.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr int millisecondsAllowed = 15000;

InstanceRequest open(const QStringList &links)
{
    return {.kind = InstanceRequest::Kind::open, .links = links};
}

/// Lets this process open few files as long as it is there.
class DescriptorLimit {
public:
    explicit DescriptorLimit(rlim_t count)
    {
        EXPECT_EQ(getrlimit(RLIMIT_NOFILE, &former_), 0);
        const rlimit limit{.rlim_cur = count, .rlim_max = former_.rlim_max};
        EXPECT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
    }
    ~DescriptorLimit() { setrlimit(RLIMIT_NOFILE, &former_); }
    Q_DISABLE_COPY_MOVE(DescriptorLimit)

private:
    rlimit former_{};
};

class InstanceListenerTest : public testing::Test {
protected:
    InstanceListenerTest()
    {
        EXPECT_TRUE(listener_.has_value());
        descriptorsAtRest_ = descriptorCount();
    }

    [[nodiscard]] QString socketPath() const { return path_ + u"/socket"_s; }

    [[nodiscard]] static qsizetype descriptorCount()
    {
        return QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
    }

    /// Whether nothing is left of any connection: no descriptor, and no timer that would wake the app.
    [[nodiscard]] bool comesToRest()
    {
        return QTest::qWaitFor(
            [&] { return descriptorCount() == descriptorsAtRest_ && (*listener_)->children().isEmpty(); },
            millisecondsAllowed);
    }

    /// What the app answers to some bytes.
    [[nodiscard]] QByteArray answer(const QByteArray &bytes)
    {
        return test::beside([&] {
            const OwnedDescriptor socket = test::connectedTo(socketPath());
            // An app that has had enough doesn't read the rest.
            std::ignore = test::sendAll(socket, bytes);
            return test::receivedLine(socket);
        });
    }

    [[nodiscard]] static QByteArray refusal(const QString &reason)
    {
        return InstanceMessage::line(InstanceMessage::Answer{.isAccepted = false, .reason = reason});
    }

    void expectToServe(const InstanceRequest &request)
    {
        requests_.clear();
        const auto isTaken = test::beside([&] { return InstanceClient(socketPath()).send(request); });
        EXPECT_EQ(isTaken, (std::expected<bool, PlatformError>(true)));
        EXPECT_EQ(requests_, QList<InstanceRequest>{request});
    }

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};

protected:
    test::TemporaryFolder home_;
    QList<InstanceRequest> requests_;
    const QString path_ = home_.path(u"app"_s);
    const std::expected<InstanceFolder, PlatformError> folder_ = InstanceFolder::make(path_);
    std::expected<std::unique_ptr<InstanceListener>, PlatformError> listener_ = InstanceListener::create(
        *folder_, socketPath(), [this](const InstanceRequest &request) { requests_.append(request); });
    qsizetype descriptorsAtRest_ = 0;
};

TEST_F(InstanceListenerTest, TakesOneRequestAfterAnother)
{
    for (int number = 0; number < 300; ++number)
        expectToServe(open({QString::number(number)}));
    EXPECT_TRUE(comesToRest());
}

TEST_F(InstanceListenerTest, PassesRequestsOnInTheirOrder)
{
    // All have come before the first of them is looked at.
    std::vector<OwnedDescriptor> askers;
    QList<InstanceRequest> asked;
    for (int number = 0; number < 20; ++number) {
        asked.append(open({QString::number(number)}));
        askers.push_back(test::connectedTo(socketPath()));
        ASSERT_TRUE(test::sendAll(askers.back(), InstanceMessage::line(asked.last())));
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return requests_.size() == asked.size(); }, millisecondsAllowed));
    EXPECT_EQ(requests_, asked);
}

TEST_F(InstanceListenerTest, TakesLongLinks)
{
    const InstanceRequest request = open({QString(1024 * 1024, u'a'), u"b"_s, QString(1024 * 1024, u'ü')});
    expectToServe(request);
}

TEST_F(InstanceListenerTest, TakesARequestThatComesByteByByte)
{
    const QByteArray line = InstanceMessage::line(open({u"vantrel://slow"_s}));
    const OwnedDescriptor socket = test::connectedTo(socketPath());
    for (const char byte : line) {
        EXPECT_TRUE(requests_.isEmpty());
        ASSERT_TRUE(test::sendAll(socket, QByteArray(1, byte)));
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return !requests_.isEmpty(); }, millisecondsAllowed));
    EXPECT_EQ(requests_, QList<InstanceRequest>{open({u"vantrel://slow"_s})});
}

TEST_F(InstanceListenerTest, RefusesGarbageAndGoesOn)
{
    for (const QByteArray &garbage :
         {QByteArray("GET / HTTP/1.1\r\n\r\n"), QByteArray("\n"), QByteArray("\0\xff\n", 3)})
        EXPECT_EQ(answer(garbage), refusal(u"The request is malformed."_s));
    EXPECT_TRUE(requests_.isEmpty());
    expectToServe(open({u"vantrel://next"_s}));
    EXPECT_TRUE(comesToRest());
}

TEST_F(InstanceListenerTest, RefusesWhatIsTooLongAndGoesOn)
{
    EXPECT_EQ(answer(QByteArray(17 * 1024 * 1024, 'x')), refusal(u"The request is too long."_s));
    QByteArray line = InstanceMessage::line(open({QString(InstanceMessage::maximumSize, u'x')}));
    ASSERT_GT(line.size(), InstanceMessage::maximumSize);
    EXPECT_EQ(answer(line), refusal(u"The request is too long."_s));
    EXPECT_TRUE(requests_.isEmpty());
    expectToServe(open({u"vantrel://next"_s}));
    EXPECT_TRUE(comesToRest());
}

TEST_F(InstanceListenerTest, TakesALineOfTheGreatestLength)
{
    const qsizetype rest = InstanceMessage::line(open({u"x"_s})).size() - 1;
    const InstanceRequest request = open({QString(InstanceMessage::maximumSize - rest, u'x')});
    ASSERT_EQ(InstanceMessage::line(request).size(), InstanceMessage::maximumSize);
    expectToServe(request);
}

TEST_F(InstanceListenerTest, ForgetsAnAskerThatDiesHalfWay)
{
    for (const QByteArray part : {"", "{\"version\":1,\"kind\":\"op", "{\"version\":1,\"kind\":\"activate\"}"})
        EXPECT_TRUE(test::sendAll(test::connectedTo(socketPath()), part));
    EXPECT_TRUE(comesToRest());
    EXPECT_TRUE(requests_.isEmpty());
}

TEST_F(InstanceListenerTest, DoesNotDoWhatNobodyWaitsForAnyMore)
{
    EXPECT_TRUE(test::sendAll(test::connectedTo(socketPath()), InstanceMessage::line(open({u"vantrel://gone"_s}))));
    EXPECT_TRUE(comesToRest());
    EXPECT_TRUE(requests_.isEmpty());
}

TEST_F(InstanceListenerTest, ServesOthersBesideThoseWhoSayNothingAndLetsThoseGoInTheEnd)
{
    std::vector<OwnedDescriptor> silent;
    for (int number = 0; number < 40; ++number) {
        silent.push_back(test::connectedTo(socketPath()));
        ASSERT_TRUE(silent.back().isOpen());
    }
    expectToServe(open({u"vantrel://next"_s}));
    descriptorsAtRest_ += 40;
    ASSERT_TRUE(comesToRest());
    for (const OwnedDescriptor &socket : silent)
        EXPECT_EQ(test::receivedLine(socket), QByteArray());
}

TEST_F(InstanceListenerTest, HasMoreAskersThanItTakesAtATimeWait)
{
    std::vector<OwnedDescriptor> silent;
    for (int number = 0; number < 200; ++number) {
        silent.push_back(test::connectedTo(socketPath()));
        ASSERT_TRUE(silent.back().isOpen());
        QCoreApplication::processEvents();
    }
    EXPECT_LT(descriptorCount(), descriptorsAtRest_ + 200 + 200);
    silent.clear();
    expectToServe(open({u"vantrel://next"_s}));
    EXPECT_TRUE(comesToRest());
}

TEST_F(InstanceListenerTest, GoesOnOnceFilesCanBeOpenedAgain)
{
    // One that is heard, first: the sanitizer looks at each class through a pipe once, which it couldn't open below.
    const OwnedDescriptor heard = test::connectedTo(socketPath());
    ASSERT_TRUE(test::sendAll(heard, InstanceMessage::line(open({u"vantrel://heard"_s}))));
    ASSERT_TRUE(QTest::qWaitFor([&] { return requests_.size() == 1; }, millisecondsAllowed));
    const OwnedDescriptor early = test::connectedTo(socketPath());
    ASSERT_TRUE(test::sendAll(early, InstanceMessage::line(open({u"vantrel://early"_s}))));
    std::vector<OwnedDescriptor> others;
    {
        const DescriptorLimit limit(static_cast<rlim_t>(descriptorCount()) + 10);
        while (others.empty() || others.back().isOpen())
            others.emplace_back(dup(early.number()));
        QCoreApplication::processEvents();
        EXPECT_EQ(requests_.size(), 1);
        others.clear();
    }
    EXPECT_TRUE(QTest::qWaitFor([&] { return requests_.size() == 2; }, millisecondsAllowed));
}

TEST_F(InstanceListenerTest, HearsNoOtherUser)
{
    // As if the folder had been opened to all.
    ASSERT_EQ(chmod(QFile::encodeName(path_).constData(), 0755), 0);
    ASSERT_EQ(chmod(QFile::encodeName(socketPath()).constData(), 0777), 0);
    const OwnedDescriptor socket = test::asAnotherUser([&] { return test::connectedTo(socketPath()); });
    ASSERT_TRUE(socket.isOpen());
    ASSERT_TRUE(test::sendAll(socket, InstanceMessage::line(open({u"vantrel://foreign"_s}))));
    const QByteArray answer = test::beside([&] { return test::receivedLine(socket); });
    EXPECT_EQ(answer.isEmpty(), test::hasAnotherUser());
    EXPECT_EQ(requests_.isEmpty(), test::hasAnotherUser());
}

TEST_F(InstanceListenerTest, MayEndWhileItHandlesARequest)
{
    listener_->reset();
    listener_ = InstanceListener::create(*folder_, socketPath(), [this](const InstanceRequest &request) {
        requests_.append(request);
        listener_->reset();
    });
    const OwnedDescriptor other = test::connectedTo(socketPath());
    ASSERT_TRUE(test::sendAll(other, InstanceMessage::line(open({u"vantrel://last"_s}))));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !requests_.isEmpty(); }, millisecondsAllowed));
    EXPECT_EQ(requests_, QList<InstanceRequest>{open({u"vantrel://last"_s})});
    EXPECT_FALSE(QFileInfo::exists(socketPath()));
}

} // namespace
} // namespace vantrel
