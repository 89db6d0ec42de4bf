#include "Vantrel/Actions/ProfileRequests.h"

#include "Tests/Fakes/FakeAlert.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeRunningApplications.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/Vantrel/PlantedBrowsers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Outcome = ProfileAnswers::Outcome;
using Reason = ProfileAnswers::Refusal::Reason;

const QString one = u"com.google.Chrome/chromium:Default"_s;
const QString two = u"com.google.Chrome/chromium:Profile 1"_s;
constexpr qsizetype enough = 100;

/// Starts as the app does: nothing is read before somebody asks.
class ProfileRequestsTest : public testing::Test {
protected:
    ProfileRequestsTest()
    {
        planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}, {u"Profile 1"_s, u"Two"_s}});
    }

    void finish()
    {
        ASSERT_TRUE(test::waitUntil([this] { return discovery_.isIdle(); }));
        // Those who wait for it go on in a turn of their own.
        test::settle();
    }

    /// The ids found, once there is an answer.
    [[nodiscard]] std::optional<QStringList> &search(const QStringList &terms, qsizetype limit = enough)
    {
        found_.reset();
        requests_.search(terms, limit).then([this](const QList<ProfileAnswers::Found> &found) {
            found_.emplace();
            for (const ProfileAnswers::Found &each : found)
                found_->append(each.id);
        });
        return found_;
    }

    [[nodiscard]] std::optional<Outcome> &open(const QString &id, const QStringList &links = {},
                                               const ProfileAnswers::Activation &activation = {})
    {
        outcome_.reset();
        requests_.open(id, links, activation).then([this](const Outcome &outcome) { outcome_ = outcome; });
        return outcome_;
    }

    [[nodiscard]] std::optional<Outcome> &openFound(const QString &id)
    {
        outcome_.reset();
        requests_.openFound(id, {}).then([this](const Outcome &outcome) { outcome_ = outcome; });
        return outcome_;
    }

    [[nodiscard]] QList<ProfileAnswers::Found> found(const QStringList &ids)
    {
        QList<ProfileAnswers::Found> answer;
        requests_.found(ids).then([&answer](const QList<ProfileAnswers::Found> &found) { answer = found; });
        return answer;
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
    ActivationSource activation_;
    ProfileIconCache icons_;
    int lists_ = 0;
    std::optional<QStringList> found_;
    std::optional<Outcome> outcome_;
    ProfileStore store_{planted_.folder.path(u"profiles.json"_s), log_};
    DiscoveryRuns discovery_{store_, {planted_.workspace, planted_.data, running_}, ProfileReader()};
    ProfileOpener opener_{store_, {planted_.workspace, alert_, log_}};
    ProfileRequests requests_{{store_, discovery_, opener_, icons_, activation_, [this] { ++lists_; }}};
};

TEST_F(ProfileRequestsTest, TheVeryFirstSearchWaitsUntilTheBrowsersWereRead)
{
    const auto &answer = search({u"chrome"_s});
    EXPECT_FALSE(answer);
    finish();
    ASSERT_TRUE(answer);
    EXPECT_EQ(*answer, QStringList({one, two, u"com.google.Chrome/private"_s}));
}

TEST_F(ProfileRequestsTest, ASearchOutOfTheSavedFileDoesNotWait)
{
    discovery_.start();
    finish();
    ProfileStore later{planted_.folder.path(u"profiles.json"_s), log_};
    DiscoveryRuns discovery(later, {planted_.workspace, planted_.data, running_}, ProfileReader());
    ProfileRequests requests({later, discovery, opener_, icons_, activation_, [] {}});
    bool isAnswered = false;
    requests.search({u"two"_s}, enough).then([&](const QList<ProfileAnswers::Found> &found) {
        isAnswered = true;
        EXPECT_EQ(found.size(), 1);
    });
    EXPECT_TRUE(isAnswered);
    EXPECT_FALSE(discovery.isIdle());
    ASSERT_TRUE(test::waitUntil([&] { return discovery.isIdle(); }));
}

TEST_F(ProfileRequestsTest, ASearchForNothingIsAnsweredAtOnceAndReadsNothing)
{
    EXPECT_EQ(search({}), QStringList());
    EXPECT_EQ(search({u" "_s}), QStringList());
    EXPECT_FALSE(store_.started());
}

TEST_F(ProfileRequestsTest, WithoutAnyBrowserNothingIsFound)
{
    planted_.workspace.uninstall(test::chrome);
    EXPECT_EQ(search({u"chrome"_s}), QStringList());
}

TEST_F(ProfileRequestsTest, DescribesWhatWasFound)
{
    discovery_.start();
    finish();
    const auto answer = found({two, u"nobody"_s, search({u"one https://example.org/ä"_s})->first()});
    ASSERT_EQ(answer.size(), 2);
    EXPECT_EQ(answer.first().id, two);
    EXPECT_EQ(answer.first().title, u"Chrome – Two"_s);
    EXPECT_EQ(answer.first().subtitle, u"Open this browser profile"_s);
    EXPECT_EQ(answer.last().title, u"Chrome – One"_s);
    EXPECT_EQ(answer.last().subtitle, u"Open https://example.org/%C3%A4"_s);
    const QImage icon = ProfileIcon{std::nullopt, false, two, u"Two"_s}.image(48);
    EXPECT_EQ(answer.first().icon(48), icon);
    EXPECT_EQ(QImage::fromData(answer.first().iconPNG(48)).size(), icon.size());
    EXPECT_EQ(found({search({u"one http://a.example http://b.example"_s})->first()}).first().subtitle,
              u"Open 2 links"_s);
}

TEST_F(ProfileRequestsTest, OpensWhatWasFoundWithItsLinks)
{
    discovery_.start();
    finish();
    const QString id = search({u"two https://example.org/"_s})->first();
    EXPECT_EQ(openFound(id), Outcome());
    EXPECT_EQ(openFound(one), Outcome());
    EXPECT_EQ(started(),
              QStringList({u"--profile-directory=Profile 1 https://example.org/"_s, u"--profile-directory=Default"_s}));
}

TEST_F(ProfileRequestsTest, OpeningWaitsForAProfileThatIsNotKnownYetAndForTheStart)
{
    planted_.workspace.holdOpenings();
    const auto &outcome = open(two, {u"https://example.org"_s});
    finish();
    EXPECT_EQ(started(), QStringList(u"--profile-directory=Profile 1 https://example.org"_s));
    EXPECT_FALSE(outcome);
    EXPECT_TRUE(planted_.workspace.takeOn());
    EXPECT_EQ(outcome, Outcome());
}

TEST_F(ProfileRequestsTest, RefusesUnknownProfilesOnceTheBrowsersWereRead)
{
    const auto &outcome = open(u"com.google.Chrome/chromium:Gone\n"_s);
    EXPECT_FALSE(outcome);
    finish();
    ASSERT_TRUE(outcome && !*outcome);
    EXPECT_EQ(outcome->error().reason, Reason::unknownProfile);
    EXPECT_TRUE(outcome->error().message.contains(u"“com.google.Chrome/chromium:Gone"_s));
    EXPECT_FALSE(outcome->error().message.contains(u'\n'));
    for (const QString &id : {QString(), u"vantrel://?browserBundleIdentifier=a&profileName=b"_s})
        EXPECT_FALSE(openFound(id).value()) << id.toStdString();
    EXPECT_TRUE(started().isEmpty());
    EXPECT_TRUE(alert_.shown().isEmpty());
}

TEST_F(ProfileRequestsTest, RefusesBadLinksAndOpensNothing)
{
    for (const QString &link : {u"mailto:ann@example.org"_s, u"example.org"_s, QString(), u"http://"_s}) {
        const auto &outcome = open(one, {u"https://example.org"_s, link});
        ASSERT_TRUE(outcome && !*outcome) << link.toStdString();
        EXPECT_EQ(outcome->error().reason, Reason::badLink);
        EXPECT_TRUE(outcome->error().message.contains(u'“' + link + u'”'));
    }
    EXPECT_TRUE(started().isEmpty());
}

TEST_F(ProfileRequestsTest, PassesOnWhatLetsTheBrowserComeToTheFront)
{
    discovery_.start();
    finish();
    std::ignore = open(one, {}, {.token = u"token"_s, .startupID = u"startup"_s, .time = 0});
    auto variables = activation_.apply({});
    EXPECT_EQ(variables.value(u"XDG_ACTIVATION_TOKEN"_s), u"token"_s);
    EXPECT_EQ(variables.value(u"DESKTOP_STARTUP_ID"_s), u"startup"_s);
    std::ignore = open(one, {}, {.token = {}, .startupID = {}, .time = 1234});
    variables = activation_.apply({});
    EXPECT_FALSE(variables.contains(u"XDG_ACTIVATION_TOKEN"_s));
    EXPECT_TRUE(variables.value(u"DESKTOP_STARTUP_ID"_s).endsWith(u"_TIME1234"_s));
}

TEST_F(ProfileRequestsTest, ShowsTheAppsList)
{
    requests_.showList({.token = u"token"_s, .startupID = {}, .time = 0});
    EXPECT_EQ(lists_, 1);
    EXPECT_EQ(activation_.apply({}).value(u"XDG_ACTIVATION_TOKEN"_s), u"token"_s);
    finish();
}

TEST_F(ProfileRequestsTest, ListsProfilesWithTheHiddenOnes)
{
    QList<ProfileAnswers::Listed> listed;
    requests_.list().then([&](const QList<ProfileAnswers::Listed> &answer) { listed = answer; });
    finish();
    ASSERT_EQ(listed.size(), 3);
    store_.setHidden(true, store_.profiles().at(1));
    store_.rename(store_.profiles().at(1), u"Büro"_s);
    requests_.list().then([&](const QList<ProfileAnswers::Listed> &answer) { listed = answer; });
    const ProfileAnswers::Listed &second = listed.at(1);
    EXPECT_EQ((QStringList{second.id, second.browserBundleID, second.browser, second.family, second.name,
                           second.displayName, second.title, second.link}),
              (QStringList{two, test::chrome, u"Chrome"_s, u"chromium"_s, u"Two"_s, u"Büro"_s, u"Chrome – Büro"_s,
                           u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=Two&profile="
                           "com.google.Chrome/chromium:Profile%201"_s}));
    EXPECT_TRUE(second.isHidden);
    EXPECT_FALSE(second.isPrivate);
    EXPECT_TRUE(listed.at(2).isPrivate);
}

} // namespace
} // namespace vantrel
