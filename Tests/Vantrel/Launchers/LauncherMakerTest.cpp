#include "Vantrel/Launchers/LauncherMaker.h"

#include "Tests/Fakes/FailingFileSystem.h"
#include "Tests/Fakes/FakeLauncherWriter.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeSavePanel.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class CountingPolicy final : public ActivationPolicy {
public:
    void becomeRegular() override {}
    void becomeAccessory() override {}
    void activate() override { ++activations; }

    int activations = 0;
};

class LauncherMakerTest : public testing::Test {
protected:
    LauncherMakerTest()
    {
        // The folder can't be made, and nothing depends on it.
        files.failAt(1);
    }

    [[nodiscard]] LauncherMaker::Result make(const QString &profile = u"c:1=Work"_s)
    {
        LauncherMaker maker({writer, files, panel, policy, log});
        const LauncherIcon icon{{}, {.id = u"x"_s, .displayName = u"x"_s}};
        return QCoro::waitFor(maker.make(test::profiles(profile).first(), u"Chrome – Work"_s, icon));
    }

    test::EventProgram program;
    test::FakeLauncherWriter writer;
    test::FailingFileSystem files;
    test::FakeSavePanel panel;
    CountingPolicy policy;
    test::FakeLog log;
};

TEST_F(LauncherMakerTest, TheLauncherIsMadeWhereTheUserWantsIt)
{
    panel.answer(u"/chosen/My Work.app"_s);
    EXPECT_EQ(make(), QUrl(u"file:///chosen/My Work.app"_s));
    const Launcher launcher = writer.launchers().value(u"/chosen/My Work.app"_s);
    EXPECT_EQ(launcher.profileID, u"com.google.Chrome/chromium:1"_s);
    EXPECT_EQ(launcher.title, u"Chrome – Work"_s);
    EXPECT_EQ(launcher.link, (LaunchLink{test::chrome, u"Work"_s, u"com.google.Chrome/chromium:1"_s, {}}));
    EXPECT_EQ(log.takeLines(), QStringList(u"[Launcher] Launcher app made"_s));
}

TEST_F(LauncherMakerTest, TheUserIsAskedInFrontAndInTheUsualFolder)
{
    panel.answer(u"/chosen/a.app"_s);
    ASSERT_TRUE(make());
    EXPECT_EQ(panel.asked(), QList<SavePanel::Panel>{writer.panel(u"Chrome – Work"_s)});
    EXPECT_EQ(policy.activations, 1);
    EXPECT_EQ(files.steps(), QStringList(u"makeFolder usual"_s));
}

TEST_F(LauncherMakerTest, WhereAFolderIsChosenTheLauncherGetsItsOwnNameInIt)
{
    writer.setAsksForFolder(true);
    panel.answer(u"/desktop"_s);
    EXPECT_EQ(make(), QUrl(u"file:///desktop/com.google.Chrome_chromium:1"_s));
}

TEST_F(LauncherMakerTest, CancellingMakesNothingAndIsNoFailure)
{
    const auto made = make();
    ASSERT_TRUE(made);
    EXPECT_EQ(*made, std::nullopt);
    EXPECT_TRUE(writer.launchers().isEmpty());
    EXPECT_TRUE(log.takeLines().isEmpty());
}

TEST_F(LauncherMakerTest, AFailureIsLoggedAndToldToTheCaller)
{
    panel.answer(u"/chosen/a.app"_s);
    writer.refuse(u"/chosen/a.app: No space left on device."_s);
    const auto made = make();
    ASSERT_FALSE(made);
    EXPECT_EQ(made.error(), LauncherMaker::Failure{u"/chosen/a.app: No space left on device."_s});
    EXPECT_EQ(log.takeLines(),
              QStringList(u"[Launcher] error: Launcher app not made: /chosen/a.app: No space left on device."_s));
}

TEST_F(LauncherMakerTest, AProfilesLauncherOffersItsBrowsersPrivateWindowAndAPrivateOneNothing)
{
    panel.answer(u"/a"_s);
    ASSERT_TRUE(make(u"e:1"_s));
    const auto action = writer.launchers().value(u"/a"_s).privateWindow;
    ASSERT_TRUE(action);
    EXPECT_EQ(action->name, u"InPrivate Window"_s);
    EXPECT_EQ(action->link, LaunchLink::forProfile(Profile::privateWindow(test::edge)));
    ASSERT_TRUE(make(u"e:private"_s));
    EXPECT_FALSE(writer.launchers().value(u"/a"_s).privateWindow);
}

} // namespace
} // namespace vantrel
