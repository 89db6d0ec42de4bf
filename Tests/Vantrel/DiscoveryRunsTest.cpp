#include "Vantrel/DiscoveryRuns.h"

#include "Tests/Fakes/FakeFolderAccess.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeRunningApplications.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/Vantrel/PlantedBrowsers.h"
#include "Vantrel/SavedState.h"

#include <QFile>
#include <QFileInfo>
#include <QSemaphore>

#include <gtest/gtest.h>

#include <coroutine>
#include <optional>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// A search of Safari that goes on until a test ends it.
class HeldSafariSearch final : public SafariSearch {
public:
    [[nodiscard]] QCoro::Task<Result> findProfiles(Browser browser) override
    {
        searched_.append(browser.bundleID);
        co_await End{waiting_};
        co_return result_;
    }

    void finish(const Result &result)
    {
        result_ = result;
        waiting_.resume();
    }

    [[nodiscard]] const QStringList &searched() const { return searched_; }

private:
    struct End {
        std::coroutine_handle<> &waiting;

        [[nodiscard]] bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> search) { waiting = search; }
        void await_resume() const noexcept {}
    };

    QStringList searched_;
    std::coroutine_handle<> waiting_;
    Result result_;
};

/// Data folders that can't be had until a test lets them, for a run that is under way for as long as a test wants.
class HeldBrowserData final : public BrowserData {
public:
    explicit HeldBrowserData(const BrowserData &data) : data_(data) {}

    [[nodiscard]] QList<BrowserDataFolder> dataFolders(const QString &bundleID) const override
    {
        arrived_.release();
        turns_.acquire();
        return data_.dataFolders(bundleID);
    }

    /// Waits until somebody asks.
    void waitForQuestion() const { arrived_.acquire(); }
    void letGo(int questions = 1) const { turns_.release(questions); }
    [[nodiscard]] bool isAsked() const { return arrived_.available() > 0; }

private:
    const BrowserData &data_;
    mutable QSemaphore arrived_;
    mutable QSemaphore turns_;
};

class DiscoveryRunsTest : public testing::Test {
protected:
    DiscoveryRuns &runs()
    {
        if (!runs_) {
            ProfileReader reader;
            reader.appSupportRoot = planted_.folder.path(u"Application Support"_s);
            runs_.emplace(store_,
                          DiscoveryRuns::Environment{planted_.workspace, planted_.data, running_, &access_, &safari_},
                          reader);
        }
        return *runs_;
    }

    void startAndFinish()
    {
        runs().start();
        finish();
    }

    void finish()
    {
        ASSERT_TRUE(test::waitUntil([this] { return runs().isIdle(); }));
    }

    [[nodiscard]] QString list() const { return test::notation(store_.profiles()); }

    test::EventProgram program_;
    test::PlantedBrowsers planted_;
    test::FakeRunningApplications running_;
    test::FakeFolderAccess access_;
    HeldSafariSearch safari_;
    test::FakeLog log_;
    QString savedPath_ = planted_.folder.path(u"saved/profiles.json"_s);
    ProfileStore store_{savedPath_, log_};
    std::optional<DiscoveryRuns> runs_;
};

TEST_F(DiscoveryRunsTest, AFirstStartFindsTheProfilesAndSavesThem)
{
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Profile 2"_s, u"Two"_s}, {u"Default"_s, u"One"_s}});
    startAndFinish();
    EXPECT_EQ(test::ids(store_.profiles()),
              QStringList({u"com.google.Chrome/chromium:Default"_s, u"com.google.Chrome/chromium:Profile 2"_s,
                           u"com.google.Chrome/private"_s}));
    EXPECT_EQ(SavedState::read(savedPath_).value_or(SavedState()).profiles, store_.profiles());
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Profiles] com.google.Chrome: 2 profiles"_s));
}

TEST_F(DiscoveryRunsTest, TheStartLoadsTheSavedOrderBeforeItReadsAnything)
{
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Profile 1"_s, u"1"_s}, {u"Profile 2"_s, u"2"_s}});
    const SavedState saved{{{test::chrome, u"old"_s, ProfileTarget::chromium(u"Profile 2"_s)}}, {}, {}, {}};
    ASSERT_TRUE(saved.write(savedPath_));
    runs().start();
    EXPECT_EQ(store_.profiles(), saved.profiles);
    EXPECT_EQ(store_.browsers().size(), 1);
    finish();
    EXPECT_EQ(test::ids(store_.profiles()),
              QStringList({u"com.google.Chrome/chromium:Profile 2"_s, u"com.google.Chrome/chromium:Profile 1"_s,
                           u"com.google.Chrome/private"_s}));
}

TEST_F(DiscoveryRunsTest, TheStartRunsOnce)
{
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}});
    startAndFinish();
    EXPECT_TRUE(store_.started());
    std::ignore = log_.takeLines();
    startAndFinish();
    EXPECT_EQ(log_.takeLines(), QStringList());
}

TEST_F(DiscoveryRunsTest, BrowsersAreAppliedInTheOrderInWhichTheyAreShown)
{
    planted_.plantFirefox(test::firefox, u"Zebra"_s, {{u"a"_s, u"A"_s}});
    planted_.plantChromium(test::chrome, u"Middle"_s, {{u"Default"_s, u"One"_s}});
    planted_.plantUnreadable(test::brave, u"Aardvark"_s);
    startAndFinish();
    const QStringList lines = log_.takeLines();
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines[0].startsWith("[Profiles] error: com.brave.Browser: profiles unreadable: "_L1));
    EXPECT_EQ(lines[1], u"[Profiles] com.google.Chrome: 1 profiles"_s);
    EXPECT_EQ(lines[2], u"[Profiles] org.mozilla.firefox: 1 profiles"_s);
    EXPECT_EQ(store_.problems().keys(), QStringList(test::brave));
}

TEST_F(DiscoveryRunsTest, NothingIsAppliedBeforeTheEventLoopRuns)
{
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}});
    runs().start();
    EXPECT_TRUE(store_.profiles().isEmpty());
    EXPECT_FALSE(runs().isIdle());
    finish();
    EXPECT_FALSE(store_.profiles().isEmpty());
}

TEST_F(DiscoveryRunsTest, ABrowserThatQuitsIsReadAgain)
{
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}});
    planted_.plantFirefox(test::firefox, u"Firefox"_s, {{u"a"_s, u"A"_s}});
    running_.start(test::chrome);
    startAndFinish();
    std::ignore = log_.takeLines();
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}, {u"Profile 1"_s, u"New"_s}});
    ASSERT_TRUE(running_.end(test::chrome));
    ASSERT_TRUE(test::waitUntil([this] { return store_.profilesOf(test::chrome).size() == 3; }));
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Profiles] com.google.Chrome: 2 profiles"_s));
}

TEST_F(DiscoveryRunsTest, OnlyTheLastInstanceThatQuitsCounts)
{
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}});
    startAndFinish();
    std::ignore = log_.takeLines();
    running_.start(test::chrome);
    running_.start(test::chrome);
    ASSERT_TRUE(running_.end(test::chrome));
    test::settle();
    EXPECT_TRUE(runs().isIdle());
    EXPECT_EQ(log_.takeLines(), QStringList());
    ASSERT_TRUE(running_.end(test::chrome));
    ASSERT_TRUE(test::waitUntil([this] { return !log_.takeLines().isEmpty(); }));
}

TEST_F(DiscoveryRunsTest, SafariIsNotFollowed)
{
    planted_.workspace.install(test::safari, u"Safari"_s);
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}});
    startAndFinish();
    EXPECT_EQ(running_.watched(), QStringList(test::chrome));
    std::ignore = log_.takeLines();
    runs().discoverBrowser(test::safari);
    EXPECT_TRUE(runs().isIdle());
    EXPECT_EQ(log_.takeLines(), QStringList());
}

TEST_F(DiscoveryRunsTest, ABrowserThatIsBeingReadIsReadOnceMoreAfterwards)
{
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}});
    const HeldBrowserData held(planted_.data);
    runs_.emplace(store_, DiscoveryRuns::Environment{planted_.workspace, held, running_}, ProfileReader());
    runs().start();
    held.waitForQuestion();
    runs().discoverBrowser(test::chrome);
    runs().discoverBrowser(test::chrome);
    test::settle();
    EXPECT_FALSE(held.isAsked());
    held.letGo(3);
    finish();
    EXPECT_EQ(log_.takeLines(), QStringList(2, u"[Profiles] com.google.Chrome: 1 profiles"_s));
}

TEST_F(DiscoveryRunsTest, RunsOverDifferentBrowsersOverlap)
{
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}});
    planted_.plantChromium(test::brave, u"Brave"_s, {{u"Default"_s, u"One"_s}});
    store_.setBrowsers({{test::chrome, u"Chrome"_s, {}, BrowserFamily::chromium},
                        {test::brave, u"Brave"_s, {}, BrowserFamily::chromium}});
    const HeldBrowserData held(planted_.data);
    runs_.emplace(store_, DiscoveryRuns::Environment{planted_.workspace, held, running_}, ProfileReader());
    runs().discoverBrowser(test::chrome);
    runs().discoverBrowser(test::brave);
    held.waitForQuestion();
    held.waitForQuestion();
    held.letGo(2);
    finish();
    EXPECT_EQ(log_.takeLines().size(), 2);
}

TEST_F(DiscoveryRunsTest, AnEndDuringARunWaitsForTheReading)
{
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}});
    const HeldBrowserData held(planted_.data);
    runs_.emplace(store_, DiscoveryRuns::Environment{planted_.workspace, held, running_}, ProfileReader());
    runs().start();
    held.waitForQuestion();
    held.letGo();
    runs_.reset();
    test::settle();
    EXPECT_TRUE(store_.profiles().isEmpty());
}

class AccessTest : public DiscoveryRunsTest {
protected:
    /// Chrome, whose folder may not be listed.
    void deny()
    {
        planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}});
        startAndFinish();
        store_.apply({{test::chrome, std::unexpected(ProfileDiscoveryError::accessDenied(u"/data"_s))}});
        ASSERT_TRUE(store_.accessDenied().contains(test::chrome));
        std::ignore = log_.takeLines();
    }
};

TEST_F(AccessTest, ThePanelNamesBrowserAndFolder)
{
    deny();
    EXPECT_TRUE(runs().canRequestAccess(test::chrome));
    runs().requestAccess(test::chrome);
    EXPECT_EQ(access_.asked(),
              QStringList(planted_.folder.path(u"Application Support/Google/Chrome"_s) +
                          u" | macOS asks for your permission before Vantrel reads Chrome's profiles. Select the "
                          "“Chrome” folder and click Grant Access. | Grant Access"_s));
}

TEST_F(AccessTest, ConfirmingReadsTheBrowser)
{
    deny();
    access_.setAnswer(true);
    runs().requestAccess(test::chrome);
    finish();
    EXPECT_TRUE(store_.accessDenied().isEmpty());
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Profiles] com.google.Chrome: 1 profiles"_s));
}

TEST_F(AccessTest, CancellingChangesNothing)
{
    deny();
    runs().requestAccess(test::chrome);
    EXPECT_TRUE(runs().isIdle());
    EXPECT_TRUE(store_.accessDenied().contains(test::chrome));
}

TEST_F(AccessTest, WithoutSuchAPanelThereIsNothingToAsk)
{
    deny();
    runs_.reset();
    runs_.emplace(store_, DiscoveryRuns::Environment{planted_.workspace, planted_.data, running_}, ProfileReader());
    EXPECT_FALSE(runs().canRequestAccess(test::chrome));
    runs().requestAccess(test::chrome);
    EXPECT_TRUE(access_.asked().isEmpty());
    EXPECT_TRUE(runs().isIdle());
}

TEST_F(AccessTest, OnlyABrowserThatWasDeniedIsAskedFor)
{
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}});
    startAndFinish();
    EXPECT_FALSE(runs().canRequestAccess(test::chrome));
    runs().requestAccess(test::chrome);
    EXPECT_TRUE(access_.asked().isEmpty());
}

TEST_F(DiscoveryRunsTest, SafariIsSearchedOnRequestAlone)
{
    planted_.workspace.install(test::safari, u"Safari"_s);
    startAndFinish();
    EXPECT_EQ(safari_.searched(), QStringList());
    EXPECT_TRUE(runs().canSearchSafari(test::safari));
    runs().searchSafari(test::safari);
    EXPECT_EQ(safari_.searched(), QStringList(test::safari));
    EXPECT_EQ(store_.searching(), QSet<QString>{test::safari});
    EXPECT_FALSE(runs().canSearchSafari(test::safari));
    EXPECT_TRUE(runs().isIdle());
    safari_.finish(QList<ProfileTarget::SafariProfile>{{.name = u"Work"_s, .index = 0}});
    EXPECT_TRUE(store_.searching().isEmpty());
    EXPECT_EQ(list(), u"s:Work s:private"_s);
    EXPECT_TRUE(runs().canSearchSafari(test::safari));
}

TEST_F(DiscoveryRunsTest, ASafariThatIsBeingSearchedIsNotSearchedTwice)
{
    planted_.workspace.install(test::safari, u"Safari"_s);
    startAndFinish();
    runs().searchSafari(test::safari);
    runs().searchSafari(test::safari);
    EXPECT_EQ(safari_.searched().size(), 1);
    safari_.finish(std::unexpected(PlatformError{u"No."_s}));
    EXPECT_EQ(store_.problems().value(test::safari), u"No."_s);
    runs().searchSafari(test::safari);
    EXPECT_EQ(safari_.searched().size(), 2);
    safari_.finish(QList<ProfileTarget::SafariProfile>());
}

TEST_F(DiscoveryRunsTest, OnlyAnInstalledSafariIsSearched)
{
    planted_.plantChromium(test::chrome, u"Chrome"_s, {{u"Default"_s, u"One"_s}});
    startAndFinish();
    for (const QString &bundleID : {test::chrome, test::safari, test::unknownBrowser}) {
        EXPECT_FALSE(runs().canSearchSafari(bundleID));
        runs().searchSafari(bundleID);
    }
    EXPECT_EQ(safari_.searched(), QStringList());
    EXPECT_TRUE(store_.searching().isEmpty());
}

TEST_F(DiscoveryRunsTest, WithoutTheMeansSafariIsNotSearched)
{
    planted_.workspace.install(test::safari, u"Safari"_s);
    DiscoveryRuns without(store_, {planted_.workspace, planted_.data, running_}, ProfileReader());
    without.start();
    EXPECT_FALSE(without.canSearchSafari(test::safari));
    without.searchSafari(test::safari);
    EXPECT_TRUE(store_.searching().isEmpty());
}

} // namespace
} // namespace vantrel
