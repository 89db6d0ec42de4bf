#include "Tests/Platform/Linux/Search/SearchFixture.h"

#include <QDBusPendingCall>
#include <QProcess>
#include <QTest>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using BusProfileServiceTest = test::SearchFixture;

const QString shell = u"org.gnome.Shell.SearchProvider2"_s;

TEST_F(BusProfileServiceTest, DescribesAllItsInterfacesBesideTheAppsOwn)
{
    const QString description = gdbus(u"introspect"_s, {});
    for (const QString &line :
         {u"interface org.freedesktop.Application {"_s, u"interface app.kestrune.Vantrel {"_s,
          u"ListProfiles(out aa{sv} profiles);"_s, u"ProfilesChanged();"_s, u"interface org.kde.krunner1 {"_s,
          u"out a(sssida{sv}) matches);"_s, u"interface org.gnome.Shell.SearchProvider2 {"_s,
          u"GetResultMetas(in  as identifiers,"_s})
        EXPECT_TRUE(description.contains(line)) << line.toStdString() << " is not in " << description.toStdString();
}

TEST_F(BusProfileServiceTest, TheAppIsStillAskedToOpenItself)
{
    EXPECT_EQ(call(u"org.freedesktop.Application.Activate"_s, {u"{}"_s}), u"()"_s);
    EXPECT_EQ(requests_, QList<InstanceRequest>(1));
}

TEST_F(BusProfileServiceTest, ALateAnswerIsSentWhenItIsThereAndHoldsUpNoOther)
{
    answers_.find(u"a/1"_s, u"Chrome – Work"_s, ProfileAnswers::Found::Fit::somewhere);
    answers_.holdNext();
    const QDBusPendingCall late = asyncCall(shell, u"GetInitialResultSet"_s, {QStringList(u"work"_s)});
    ASSERT_TRUE(QTest::qWaitFor([this] { return answers_.isHolding(); }));
    EXPECT_EQ(call(u"app.kestrune.Vantrel.ListProfiles"_s), u"(@aa{sv} [],)"_s);
    EXPECT_FALSE(late.isFinished());
    answers_.goOn();
    ASSERT_TRUE(QTest::qWaitFor([&late] { return late.isFinished(); }));
    EXPECT_EQ(late.reply().arguments(), QVariantList(1, QStringList(u"a/1"_s)));
}

TEST_F(BusProfileServiceTest, RefusesWrongCallsAndGoesOn)
{
    const QDBusPendingCall wrong = asyncCall(shell, u"GetInitialResultSet"_s, {u"text"_s});
    ASSERT_TRUE(QTest::qWaitFor([&wrong] { return wrong.isFinished(); }));
    EXPECT_EQ(wrong.error().name(), u"org.freedesktop.DBus.Error.InvalidArgs"_s);
    EXPECT_EQ(wrong.error().message(), u"GetInitialResultSet takes (as), not (s)."_s);
    EXPECT_TRUE(
        call(u"app.kestrune.Vantrel.Close"_s).contains(u"UnknownMethod: app.kestrune.Vantrel has no method Close."_s));
    EXPECT_TRUE(call(u"org.example.Other.Match"_s, {u"'a'"_s}).startsWith(u"Error:"_s));
    EXPECT_EQ(answers_.takeCalls(), QStringList());
    EXPECT_EQ(call(u"app.kestrune.Vantrel.ListProfiles"_s), u"(@aa{sv} [],)"_s);
}

TEST_F(BusProfileServiceTest, ACallWithoutAnInterfaceGoesToTheOneThatHasItsMethod)
{
    const QDBusPendingCall match = asyncCall(QString(), u"Match"_s, {u"work"_s});
    ASSERT_TRUE(QTest::qWaitFor([&match] { return match.isFinished(); }));
    EXPECT_FALSE(match.isError()) << match.error().message().toStdString();
    EXPECT_EQ(answers_.takeCalls(), QStringList(u"search work 20"_s));
}

TEST_F(BusProfileServiceTest, TellsThatTheProfilesHaveChanged)
{
    QProcess monitor;
    monitor.start(u"gdbus"_s,
                  {u"monitor"_s, u"--address"_s, bus_.address(), u"--dest"_s, ActivationMessage::busName()});
    QByteArray text;
    const auto prints = [&monitor, &text](const QByteArray &wanted) {
        const auto isThere = [&] {
            text += monitor.readAll();
            return text.contains(wanted);
        };
        return QTest::qWaitFor(isThere, 15000);
    };
    ASSERT_TRUE(prints("is owned by")) << "Install the package libglib2.0-bin.";
    service_.announceChange();
    EXPECT_TRUE(prints("/app/kestrune/Vantrel: app.kestrune.Vantrel.ProfilesChanged ()"));
    monitor.kill();
    monitor.waitForFinished();
}

TEST(BusProfileService, HasNoInterfaceBeforeTheStartAndNeedsNoBus)
{
    BusProfileService service(QDBusConnection(QString()), u"/path"_s);
    EXPECT_EQ(service.introspect(u"/path"_s), QString());
    const QDBusMessage call = QDBusMessage::createMethodCall(u"a.b"_s, u"/path"_s, shell, u"GetResultMetas"_s);
    EXPECT_FALSE(service.handleMessage(call, QDBusConnection(QString())));
    service.announceChange();
    test::FakeProfileAnswers answers;
    service.start(answers);
    EXPECT_NE(service.introspect(u"/path"_s), QString());
    EXPECT_EQ(service.introspect(u"/other"_s), QString());
}

} // namespace
} // namespace vantrel
