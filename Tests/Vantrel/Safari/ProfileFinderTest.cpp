#include "Vantrel/Safari/ProfileFinder.h"

#include "Tests/Fakes/FakeClock.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakePermissions.h"
#include "Tests/Fakes/FakeRunningApplications.h"
#include "Tests/Fakes/FakeSafariBridge.h"
#include "Tests/Fakes/FakeScriptRunner.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/Vantrel/Safari/SafariPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel::Safari {
namespace {

using Runner = test::FakeScriptRunner;
using Found = ProfileTarget::SafariProfile;

const Browser safari{test::safari, u"Safari"_s, QUrl::fromLocalFile(u"/Applications/Safari.app"_s),
                     BrowserFamily::safari};

class ProfileFinderTest : public testing::Test {
protected:
    SafariSearch::Result find() { return QCoro::waitFor(finder_.findProfiles(safari)); }

    QString failure()
    {
        const auto found = find();
        EXPECT_FALSE(found.has_value());
        return found ? QString() : found.error().message;
    }

    void answerMenus(const QString &fileMenu)
    {
        runner_.answer(Runner::printing(u"Apple\nSafari\nFile\nEdit\n"_s));
        runner_.answer(Runner::printing(fileMenu));
    }

    test::EventProgram program_;
    Runner runner_;
    test::FakeSafariBridge bridge_;
    test::FakeAccessibilityTrust accessibility_;
    test::FakeRunningApplications running_;
    test::FakeClock clock_;
    test::FakeLog log_;
    Scripting scripting_{runner_, log_};
    Languages languages_{QUrl(), QUrl()};
    MenuReader menus_{{scripting_, languages_, clock_, log_}};
    ProfileFinder finder_{{menus_, bridge_, accessibility_, running_, clock_, log_}};
};

TEST_F(ProfileFinderTest, ProfilesAreNumberedInTheMenusOrder)
{
    running_.start(test::safari);
    answerMenus(u"New Personal Window\nNew Work Window\nNew Private Window\n\nNew Work Window\nClose\n"_s);
    const QList<Found> expected{{u"Personal"_s, 0}, {u"Work"_s, 1}, {u"Work"_s, 2}};
    EXPECT_EQ(find(), expected);
    EXPECT_EQ(bridge_.starts(), QList<QUrl>());
    EXPECT_EQ(bridge_.connections(), QStringList());
    EXPECT_EQ(accessibility_.questions(), 0);
}

TEST_F(ProfileFinderTest, ASafariWithoutProfilesHasNone)
{
    running_.start(test::safari);
    answerMenus(u"Close\n"_s);
    EXPECT_EQ(find(), QList<Found>());
}

TEST_F(ProfileFinderTest, ASafariThatDoesNotRunIsStartedHidden)
{
    bridge_.setStart([this]() -> std::expected<void, PlatformError> {
        EXPECT_EQ(runner_.takeScripts(), QStringList());
        running_.start(test::safari);
        return {};
    });
    answerMenus(u"New Work Window\n"_s);
    EXPECT_TRUE(find().has_value());
    EXPECT_EQ(bridge_.starts(), QList<QUrl>(1, safari.url));
    EXPECT_EQ(bridge_.application().takeCalls(), QStringList());
}

TEST_F(ProfileFinderTest, AStartMayTakeItsTime)
{
    int sleeps = 0;
    clock_.setMeanwhile([this, &sleeps] {
        if (++sleeps == 39)
            running_.start(test::safari);
    });
    answerMenus(u"New Work Window\n"_s);
    EXPECT_TRUE(find().has_value());
    EXPECT_EQ(clock_.takeSleeps(), QList<int>(39, 50));
}

TEST_F(ProfileFinderTest, ASafariThatDoesNotStartIsNotAsked)
{
    EXPECT_EQ(failure(), Failure::notStarted().message);
    bridge_.setStart(
        []() -> std::expected<void, PlatformError> { return std::unexpected(PlatformError{u"The disk is gone."_s}); });
    EXPECT_EQ(failure(), Failure::notStarted().message);
    EXPECT_EQ(log_.takeLines(), QStringList(u"[ScriptingErrors] error: Safari not started: The disk is gone."_s));
    EXPECT_EQ(runner_.takeScripts(), QStringList());
}

TEST_F(ProfileFinderTest, ASafariThatQuitsWhileItIsReadDidNotStart)
{
    running_.start(test::safari);
    clock_.setMeanwhile([this] { std::ignore = running_.end(test::safari); });
    EXPECT_EQ(failure(), Failure::notStarted().message);
    EXPECT_EQ(runner_.takeScripts().size(), 10);
}

TEST_F(ProfileFinderTest, AMenuThatStaysUnreadableIsToldWithItsBarOrWithout)
{
    running_.start(test::safari);
    runner_.answer(Runner::printing(u"Apple\nSafari\nFile\nEdit\n"_s));
    EXPECT_EQ(failure(), Failure::menuUnreadable().message);
    EXPECT_EQ(runner_.takeScripts().size(), 1 + 5);
    EXPECT_EQ(failure(), Failure::menuUnreadable().message);
    EXPECT_EQ(runner_.takeScripts().size(), 10 + 5);
}

TEST_F(ProfileFinderTest, FatalFailuresAreToldAndTheUserIsAskedForTrust)
{
    running_.start(test::safari);
    runner_.answer(Runner::failing(u"(-1743)"_s));
    EXPECT_EQ(failure(), Failure::automation().message);
    EXPECT_EQ(accessibility_.questions(), 0);
    accessibility_.setTrusted(false);
    runner_.answer(Runner::printing(u"Apple\nSafari\nFile\nEdit\n"_s));
    runner_.answer(Runner::failing(u"(-25211)"_s));
    EXPECT_EQ(failure(), Failure::accessibility().message);
    EXPECT_EQ(accessibility_.questions(), 1);
}

} // namespace
} // namespace vantrel::Safari
