#include "Vantrel/Safari/Windows.h"

#include "Tests/Fakes/FakeClock.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakePermissions.h"
#include "Tests/Fakes/FakeRunningApplications.h"
#include "Tests/Fakes/FakeSafariBridge.h"
#include "Tests/Fakes/FakeScriptRunner.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/Vantrel/Safari/SafariPrinting.h"
#include "Vantrel/Safari/Automation.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel::Safari {
namespace {

using Runner = test::FakeScriptRunner;

const Browser safari{test::safari, u"Safari"_s, QUrl::fromLocalFile(u"/Applications/Safari.app"_s),
                     BrowserFamily::safari};
const QString barScript = menuBarScript(u"Safari"_s);
const QString fileScript = fileMenuScript(u"Safari"_s, u"File"_s);

/// A Safari whose menus a test writes, and which opens windows when it is clicked.
class WindowsTest : public testing::Test {
protected:
    WindowsTest()
    {
        auto scripts = std::make_unique<Runner>();
        runner_ = scripts.get();
        auto bridge = std::make_unique<test::FakeSafariBridge>();
        bridge_ = bridge.get();
        auto accessibility = std::make_unique<test::FakeAccessibilityTrust>();
        accessibility_ = accessibility.get();
        auto automation = std::make_unique<test::FakeAutomationPermission>();
        automation_ = automation.get();
        ports_ = {std::move(scripts), std::move(bridge), std::move(accessibility), std::move(automation)};
        running_.start(test::safari);
        runner_->setHandler([this](const QString &script) { return answer(script); });
    }

    Runner::End answer(const QString &script)
    {
        if (script == barScript)
            return bar_;
        if (script == fileScript)
            return fileMenu_;
        const bool opens = script.contains(u" to click "_s) || script.contains(u" to keystroke "_s);
        if (opens && deafClicks_-- <= 0)
            bridge_->application().windows.prepend({.id = nextWindow_++, .tabs = {u"favorites://"_s}});
        return Runner::printing({});
    }

    std::expected<void, PlatformError> open(const QString &name, qint64 index = 1, const QStringList &links = {})
    {
        return QCoro::waitFor(automation().windows().openProfile(name, index, safari, QUrl::fromStringList(links)));
    }

    Automation &automation()
    {
        if (!made_)
            made_.emplace(Automation::Environment{ports_, running_, languages_, clock_, log_});
        return *made_;
    }

    /// The scripts since the last time that do more than read.
    QStringList actions()
    {
        QStringList scripts = runner_->takeScripts();
        scripts.removeIf([](const QString &script) { return script == barScript || script == fileScript; });
        return scripts;
    }

    static QString click(int number)
    {
        return clickItemScript(u"Safari"_s, number, SafariLanguage::english(), MenuLayout::flat);
    }
    static QString place(int place, PlaceMeans means) { return openPlaceScript(u"Safari"_s, place, u"File"_s, means); }
    static QString raise(int id) { return raiseWindowScript(u"Safari"_s, id); }

    test::EventProgram program_;
    Runner *runner_ = nullptr;
    test::FakeSafariBridge *bridge_ = nullptr;
    test::FakeAccessibilityTrust *accessibility_ = nullptr;
    test::FakeAutomationPermission *automation_ = nullptr;
    SafariPorts ports_;
    test::FakeRunningApplications running_;
    test::FakeClock clock_;
    test::FakeLog log_;
    Languages languages_{QUrl(), QUrl()};
    std::optional<Automation> made_;
    Runner::End bar_ = Runner::printing(u"Apple\nSafari\nFile\nEdit\n"_s);
    Runner::End fileMenu_ = Runner::printing(u"New Personal Window\nNew Work Window\nNew Private Window\n"_s);
    int nextWindow_ = 1;
    int deafClicks_ = 0;
};

TEST_F(WindowsTest, AProfileIsItsItemInTheMenu)
{
    EXPECT_TRUE(open(u"Work"_s, 7).has_value());
    EXPECT_EQ(runner_->takeScripts(), QStringList({barScript, fileScript, click(2), raise(1)}));
    EXPECT_EQ(bridge_->application().takeCalls(), QStringList(u"activate"_s));
    EXPECT_EQ(log_.takeLines(), QStringList());
}

TEST_F(WindowsTest, LinksGoIntoTheNewWindowAndOnlyThoseForBrowsers)
{
    EXPECT_TRUE(
        open(u"Work"_s, 1, {u"https://a.example/"_s, u"javascript:alert(1)"_s, u"mailto:a@b.example"_s, u"file:///b"_s})
            .has_value());
    EXPECT_EQ(bridge_->application().takeCalls(),
              QStringList({u"activate"_s, u"url 1 0 https://a.example/"_s, u"current 1 0"_s, u"tab 1"_s,
                           u"url 1 1 file:///b"_s, u"current 1 1"_s}));
}

TEST_F(WindowsTest, AProfileThatIsGoneIsNamed)
{
    for (const QString &name : test::oddTexts()) {
        const auto opened = open(name, 1);
        ASSERT_FALSE(opened.has_value());
        EXPECT_EQ(opened.error().message, Failure::noProfile(name).message);
    }
    EXPECT_EQ(actions(), QStringList());
}

TEST_F(WindowsTest, AProfileWithoutAReadableMenuIsOpenedByItsPlace)
{
    fileMenu_ = Runner::printing({});
    EXPECT_TRUE(open(u"Work"_s, 3).has_value());
    EXPECT_EQ(actions(), QStringList({place(3, PlaceMeans::keys), raise(1)}));
    EXPECT_EQ(log_.takeLines().last(),
              u"[ScriptingErrors] Safari's File menu unreadable; opening the profile by its place, 3"_s);
    EXPECT_TRUE(open(u"Work"_s, 12).has_value());
    EXPECT_EQ(actions(), QStringList({place(12, PlaceMeans::menuItem), raise(2)}));
}

TEST_F(WindowsTest, ALanguageThatCanNotBeReadDoesNotKeepAProfileFromOpening)
{
    bar_ = Runner::failing({});
    fileMenu_ = Runner::failing({});
    EXPECT_TRUE(open(u"Work"_s, 0).has_value());
    EXPECT_EQ(actions(), QStringList({place(0, PlaceMeans::keys), raise(1)}));
}

TEST_F(WindowsTest, KeysThatOpenNothingGiveWayToTheMenu)
{
    fileMenu_ = Runner::printing({});
    deafClicks_ = 2;
    EXPECT_TRUE(open(u"Work"_s, 3).has_value());
    EXPECT_EQ(actions(), QStringList({place(3, PlaceMeans::keys), place(3, PlaceMeans::menuItem),
                                      place(3, PlaceMeans::menuItem), raise(1)}));
}

TEST_F(WindowsTest, AnUnknownPlaceCanNotBeOpened)
{
    fileMenu_ = Runner::printing({});
    const auto opened = open(u"Work"_s, -1);
    ASSERT_FALSE(opened.has_value());
    EXPECT_EQ(opened.error().message, Failure::menuUnreadable().message);
    EXPECT_EQ(actions(), QStringList());
}

TEST_F(WindowsTest, AnItemIsLookedForAgainBeforeItIsClickedAgain)
{
    deafClicks_ = 1;
    clock_.setMeanwhile([this] { fileMenu_ = Runner::printing(u"New Window\nNew A Window\nNew Work Window\n"_s); });
    fileMenu_ = Runner::printing(u"New Work Window\n"_s);
    // The menu has changed its layout meanwhile as well.
    runner_->setHandler([this](const QString &script) {
        return script == profileSubmenuScript(u"Safari"_s, SafariLanguage::english())
                   ? Runner::printing(u"New A Window\nNew Work Window\n"_s)
                   : answer(script);
    });
    EXPECT_TRUE(open(u"Work"_s).has_value());
    const QString second = clickItemScript(u"Safari"_s, 2, SafariLanguage::english(), MenuLayout::submenu);
    EXPECT_EQ(actions(),
              QStringList({click(1), profileSubmenuScript(u"Safari"_s, SafariLanguage::english()), second, raise(1)}));
}

TEST_F(WindowsTest, WithoutAWindowItFailsAndNoLinkIsPlaced)
{
    deafClicks_ = 100;
    const auto opened = open(u"Work"_s, 1, {u"https://a.example/"_s});
    ASSERT_FALSE(opened.has_value());
    EXPECT_EQ(opened.error().message, Failure::windowNotOpened().message);
    EXPECT_EQ(actions(), QStringList(3, click(2)));
    EXPECT_EQ(bridge_->application().takeCalls(), QStringList(u"activate"_s));
}

TEST_F(WindowsTest, WithoutTrustNothingIsRun)
{
    accessibility_->setTrusted(false);
    for (const auto &opened : {open(u"Work"_s), QCoro::waitFor(automation().windows().openPrivateWindow(safari, {}))}) {
        ASSERT_FALSE(opened.has_value());
        EXPECT_EQ(opened.error().message, Failure::accessibility().message);
    }
    EXPECT_EQ(runner_->takeScripts(), QStringList());
    EXPECT_EQ(accessibility_->questions(), 2);
}

TEST_F(WindowsTest, WithoutPermissionNothingIsRun)
{
    automation_->setAnswer(AutomationPermission::denied);
    const auto opened = open(u"Work"_s);
    ASSERT_FALSE(opened.has_value());
    EXPECT_EQ(opened.error().message, Failure::automation().message);
    EXPECT_EQ(runner_->takeScripts(), QStringList());
}

TEST_F(WindowsTest, FailuresOfScriptsAreLoggedAndPassedOn)
{
    const QString logged = u"[ScriptingErrors] error: Safari scripting failed: "_s;
    bar_ = Runner::hanging();
    EXPECT_EQ(open(u"Work"_s).error().message, Failure::timeOut().message);
    EXPECT_EQ(log_.takeLines(), QStringList(logged + Failure::timeOut().message));
    bar_ = Runner::printing(u"Apple\nSafari\nFile\nEdit\n"_s);
    fileMenu_ = Runner::failing(u"(-1719)"_s);
    EXPECT_EQ(open(u"Work"_s).error().message, Failure::accessibility().message);
    EXPECT_EQ(log_.takeLines().last(), logged + Failure::accessibility().message);
    fileMenu_ = Runner::printing(u"New Work Window\n"_s);
    runner_->setHandler([this](const QString &script) {
        return script == click(1) ? Runner::failing(u"Can’t get menu item 1."_s) : answer(script);
    });
    EXPECT_EQ(open(u"Work"_s).error().message, u"Can’t get menu item 1."_s);
    EXPECT_EQ(log_.takeLines().last(), logged + u"Can’t get menu item 1."_s);
    EXPECT_EQ(actions(), QStringList(click(1)));
}

TEST_F(WindowsTest, WindowsWithoutAProfileAreOpenedByTheirKeys)
{
    const QList<QUrl> links{QUrl(u"https://a.example/"_s)};
    EXPECT_TRUE(QCoro::waitFor(automation().windows().openPrivateWindow(safari, links)).has_value());
    EXPECT_EQ(runner_->takeScripts(), QStringList({privateWindowScript(u"Safari"_s), raise(1)}));
    EXPECT_TRUE(QCoro::waitFor(automation().windows().openOrdinaryWindow(safari, links)).has_value());
    EXPECT_EQ(runner_->takeScripts(), QStringList({ordinaryWindowScript(u"Safari"_s), raise(2)}));
    EXPECT_EQ(bridge_->application().takeCalls(),
              QStringList({u"activate"_s, u"url 1 0 https://a.example/"_s, u"current 1 0"_s, u"activate"_s,
                           u"url 2 0 https://a.example/"_s, u"current 2 0"_s}));
}

} // namespace
} // namespace vantrel::Safari
