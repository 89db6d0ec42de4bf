#include "Vantrel/Actions/ActionRequests.h"

#include "Tests/Fakes/FakeAlert.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeRunningApplications.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/Vantrel/PlantedBrowsers.h"
#include "Vantrel/Actions/SystemProfiles.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Outcome = ActionAnswers::Outcome;

const QString one = u"com.google.Chrome/chromium:Default"_s;
const QString two = u"com.google.Chrome/chromium:Profile 1"_s;

/// Starts as the app does: nothing is read before somebody asks.
class ActionRequestsTest : public testing::Test {
protected:
    ActionRequestsTest()
    {
        planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}, {u"Profile 1"_s, u"Two"_s}});
    }

    void finish()
    {
        ASSERT_TRUE(test::waitUntil([this] { return discovery_.isIdle(); }));
        // Those who wait for it go on in a turn of their own.
        test::settle();
    }

    /// The ids of those who come, once they do.
    [[nodiscard]] std::optional<QStringList> &ids(ActionAnswers::Profiles profiles)
    {
        ids_.reset();
        profiles.then([this](const QList<SystemProfile> &found) {
            ids_.emplace();
            for (const SystemProfile &each : found)
                ids_->append(each.id);
        });
        return ids_;
    }

    [[nodiscard]] std::optional<Outcome> &outcome(QCoro::Task<Outcome> performing)
    {
        outcome_.reset();
        performing.then([this](Outcome outcome) { outcome_ = outcome; });
        return outcome_;
    }

    [[nodiscard]] QStringList started() const
    {
        QStringList starts;
        for (const test::FakeWorkspace::Opening &opening : planted_.workspace.openings())
            starts.append(opening.arguments.join(u' '));
        return starts;
    }

    test::PlantedBrowsers planted_;
    test::FakeRunningApplications running_;
    test::FakeAlert alert_;
    test::FakeLog log_;
    ProfileIconCache icons_;
    std::optional<QStringList> ids_;
    std::optional<Outcome> outcome_;
    ProfileStore store_{planted_.folder.path(u"profiles.json"_s), log_};
    DiscoveryRuns discovery_{store_, {planted_.workspace, planted_.data, running_}, ProfileReader()};
    ProfileOpener opener_{store_, {planted_.workspace, alert_, log_}};
    ProfileTitles titles_{store_};
    ActionRequests requests_{{store_, discovery_, opener_, titles_, icons_}};
};

TEST_F(ActionRequestsTest, TheVeryFirstAnswerWaitsUntilTheBrowsersWereRead)
{
    const auto &answer = ids(requests_.suggestedProfiles());
    EXPECT_FALSE(answer);
    finish();
    EXPECT_EQ(answer, QStringList({one, two, u"com.google.Chrome/private"_s}));
}

TEST_F(ActionRequestsTest, ProfilesComeInTheOrderAskedAndUnknownOnesDoNot)
{
    const auto &answer = ids(requests_.profiles({two, u"nobody"_s, one}));
    finish();
    EXPECT_EQ(answer, QStringList({two, one}));
}

TEST_F(ActionRequestsTest, ATextIsFoundInTheFullTitle)
{
    discovery_.start();
    finish();
    EXPECT_EQ(ids(requests_.profilesMatching(u"CHROME – tw"_s)), QStringList(two));
    EXPECT_EQ(ids(requests_.profilesMatching(u"three"_s)), QStringList());
}

TEST_F(ActionRequestsTest, AProfileHasItsNamesAndItsPicture)
{
    discovery_.start();
    finish();
    SystemProfile profile;
    requests_.profiles({two}).then([&profile](const QList<SystemProfile> &found) { profile = found.value(0); });
    EXPECT_EQ(profile.name, u"Two"_s);
    EXPECT_EQ(profile.browser, u"Chrome"_s);
    EXPECT_EQ(profile.title, u"Chrome – Two"_s);
    EXPECT_EQ(QImage::fromData(profile.picture, "PNG").size(), QSize(systemPicturePixels, systemPicturePixels));
}

TEST_F(ActionRequestsTest, OpensAProfileThatIsOnlyBeingFound)
{
    const auto &ended = outcome(requests_.openProfile(two));
    EXPECT_FALSE(ended);
    finish();
    EXPECT_EQ(ended, Outcome::performed);
    EXPECT_EQ(started(), QStringList(u"--profile-directory=Profile 1"_s));
}

TEST_F(ActionRequestsTest, OpensAProfileThatTheSavedFileDoesNotHaveYet)
{
    discovery_.start();
    finish();
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}, {u"Profile 2"_s, u"New"_s}});
    ProfileStore later{planted_.folder.path(u"profiles.json"_s), log_};
    DiscoveryRuns discovery(later, {planted_.workspace, planted_.data, running_}, ProfileReader());
    ProfileOpener opener(later, {planted_.workspace, alert_, log_});
    ProfileTitles titles(later);
    ActionRequests requests({later, discovery, opener, titles, icons_});
    const auto &ended = outcome(requests.openProfile(u"com.google.Chrome/chromium:Profile 2"_s));
    EXPECT_FALSE(ended);
    ASSERT_TRUE(test::waitUntil([&ended] { return ended.has_value(); }));
    EXPECT_EQ(ended, Outcome::performed);
    EXPECT_EQ(started(), QStringList(u"--profile-directory=Profile 2"_s));
}

TEST_F(ActionRequestsTest, OpensLinksInTheirOrder)
{
    discovery_.start();
    finish();
    const QList<QUrl> links{QUrl(u"https://example.org/2"_s), QUrl(u"https://example.org/1"_s)};
    EXPECT_EQ(outcome(requests_.openLinks(links, one)), Outcome::performed);
    EXPECT_EQ(outcome(requests_.openLinks({}, two)), Outcome::performed);
    EXPECT_EQ(started(), QStringList({u"--profile-directory=Default https://example.org/2 https://example.org/1"_s,
                                      u"--profile-directory=Profile 1"_s}));
}

TEST_F(ActionRequestsTest, AProfileThatIsGoneIsToBeChosenAgain)
{
    const auto &ended = outcome(requests_.openProfile(u"com.google.Chrome/chromium:Gone"_s));
    EXPECT_FALSE(ended);
    finish();
    EXPECT_EQ(ended, Outcome::needsProfile);
    EXPECT_EQ(outcome(requests_.openLinks({QUrl(u"https://example.org/"_s)}, {})), Outcome::needsProfile);
    EXPECT_TRUE(started().isEmpty());
    EXPECT_TRUE(alert_.shown().isEmpty());
}

TEST_F(ActionRequestsTest, AFailureOfTheBrowserWasShown)
{
    discovery_.start();
    finish();
    planted_.workspace.refuse(test::chrome, u"No such program."_s);
    EXPECT_EQ(outcome(requests_.openProfile(one)), Outcome::performed);
    EXPECT_EQ(alert_.shown().size(), 1);
}

} // namespace
} // namespace vantrel
