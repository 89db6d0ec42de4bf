#include "Tests/Vantrel/Actions/ActionsFixture.h"
#include "Vantrel/Actions/OpenLinksInProfileIntent.h"
#include "Vantrel/Actions/VantrelShortcuts.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Result = OpenProfileIntent::Result;
using Parameter = NeedsValueError::Parameter;

class IntentsTest : public test::ActionsFixture {
protected:
    /// The intent's result, once it has one.
    template <typename Intent>
    void perform(const Intent &intent)
    {
        intent.perform({store_, opener_}).then([this](const Result &result) { result_ = result; });
    }

    [[nodiscard]] ProfileEntity entity(const QString &id) { return ProfileQuery(titles_).entities({id}).first(); }

    std::optional<Result> result_;
};

const QString work = u"com.google.Chrome/chromium:Default"_s;
const QList<QUrl> links{QUrl(u"https://example.org/2"_s), QUrl(u"https://example.org/1"_s)};

TEST_F(IntentsTest, OpeningAProfileStartsItsBrowserAndIsLoggedAsAnIntent)
{
    perform(OpenProfileIntent{entity(work)});
    EXPECT_EQ(result_, Result());
    EXPECT_EQ(started(), QStringList(u"--profile-directory=Default"_s));
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Open] Opening a chromium profile from the intent with 0 links"_s));
}

TEST_F(IntentsTest, OpeningLinksKeepsTheirOrder)
{
    perform(OpenLinksInProfileIntent{links, entity(work)});
    EXPECT_EQ(result_, Result());
    EXPECT_EQ(started(), QStringList(u"--profile-directory=Default https://example.org/2 https://example.org/1"_s));
}

TEST_F(IntentsTest, OpeningNoLinksOpensTheProfile)
{
    perform(OpenLinksInProfileIntent{{}, entity(work)});
    EXPECT_EQ(result_, Result());
    EXPECT_EQ(started(), QStringList(u"--profile-directory=Default"_s));
}

TEST_F(IntentsTest, EndWhenTheBrowserHasTakenOnTheStartAndOutliveTheIntent)
{
    workspace_.holdOpenings();
    perform(OpenProfileIntent{entity(work)});
    EXPECT_FALSE(result_);
    EXPECT_TRUE(workspace_.takeOn());
    EXPECT_EQ(result_, Result());
}

TEST_F(IntentsTest, AFailureOfTheBrowserIsShownAndNoErrorOfTheIntent)
{
    workspace_.refuse(test::chrome, u"No such program."_s);
    perform(OpenProfileIntent{entity(work)});
    EXPECT_EQ(result_, Result());
    EXPECT_EQ(alert_.shown().size(), 1);
}

TEST_F(IntentsTest, AProfileThatIsGoneNeedsAnotherValue)
{
    const ProfileEntity gone = entity(work);
    discover(test::chrome, {u"Profile 1=Work"_s});
    perform(OpenProfileIntent{gone});
    EXPECT_EQ(result_, Result(std::unexpected(NeedsValueError{Parameter::target})));
    perform(OpenLinksInProfileIntent{links, gone});
    EXPECT_EQ(result_, Result(std::unexpected(NeedsValueError{Parameter::profile})));
    EXPECT_TRUE(started().isEmpty());
    EXPECT_TRUE(alert_.shown().isEmpty());
}

TEST_F(IntentsTest, OpenWhatTheStoreHasNowUnderTheirId)
{
    ProfileEntity outdated = entity(work);
    outdated.title = u"Another"_s;
    store_.rename(profile(work), u"Büro"_s);
    perform(OpenProfileIntent{outdated});
    EXPECT_EQ(started(), QStringList(u"--profile-directory=Default"_s));
}

TEST(IntentTexts, SayWhatTheIntentsDo)
{
    EXPECT_EQ(OpenProfileIntent::title(), u"Open Browser Profile"_s);
    EXPECT_EQ(OpenProfileIntent::targetTitle(), u"Profile"_s);
    EXPECT_EQ(OpenProfileIntent::summary(u"Work"_s), u"Open Work"_s);
    EXPECT_EQ(OpenLinksInProfileIntent::title(), u"Open Links in Browser Profile"_s);
    EXPECT_EQ(OpenLinksInProfileIntent::linksTitle(), u"Links"_s);
    EXPECT_EQ(OpenLinksInProfileIntent::profileTitle(), u"Profile"_s);
    EXPECT_EQ(OpenLinksInProfileIntent::summary(u"%2"_s, u"Work"_s), u"Open %2 in Work"_s);
}

TEST(IntentTexts, TheShortcutHasItsTwoPhrases)
{
    const auto shortcut = VantrelShortcuts::openProfile(u"Work"_s, u"Vantrel"_s);
    EXPECT_EQ(shortcut.shortTitle, u"Open Profile"_s);
    EXPECT_EQ(shortcut.systemImage, u"paperplane.fill"_s);
    EXPECT_EQ(shortcut.phrases, QStringList({u"Open Work with Vantrel"_s, u"Open a profile with Vantrel"_s}));
}

} // namespace
} // namespace vantrel
