#include "Vantrel/ProfileHotkeys.h"

#include "KeyboardShortcuts/ModifierFlags.h"
#include "Tests/Fakes/FakeAlert.h"
#include "Tests/Fakes/FakeHotKeyPort.h"
#include "Tests/Fakes/FakeKeyboardLayout.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeUserDefaults.h"
#include "Tests/Fakes/FakeWorkspace.h"
#include "Tests/VantrelKit/Samples.h"
#include "Vantrel/InstalledBrowsers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr Shortcut controlA{0, CarbonModifier::control};
constexpr Shortcut controlP{35, CarbonModifier::control};

class ProfileHotkeysTest : public testing::Test {
protected:
    ProfileHotkeysTest()
    {
        workspace_.install(test::chrome, u"Chrome"_s);
        store_.setBrowsers(installedBrowsers(workspace_, {test::chrome}));
    }

    /// Chrome has these folders from now on.
    void discover(const QStringList &folders)
    {
        QList<DiscoveredProfile> profiles;
        for (const QString &folder : folders)
            profiles.append({folder, folder});
        store_.apply({{test::chrome, profiles}});
    }

    [[nodiscard]] static ShortcutName name(const QString &folder)
    {
        return ProfileHotkeys::shortcutName({test::chrome, folder, ProfileTarget::chromium(folder)});
    }

    void press(std::uint32_t keyCode)
    {
        port_.press(0x3b);
        port_.press(keyCode);
    }

    void release(std::uint32_t keyCode)
    {
        port_.release(keyCode);
        port_.release(0x3b);
    }

    /// The folders that were opened.
    [[nodiscard]] QStringList opened() const
    {
        QStringList folders;
        for (const test::FakeWorkspace::Opening &opening : workspace_.openings())
            folders.append(opening.arguments.join(u' ').remove("--profile-directory="_L1));
        return folders;
    }

    test::FakeWorkspace workspace_;
    test::FakeAlert alert_;
    test::FakeLog log_;
    test::FakeUserDefaults defaults_;
    test::FakeHotKeyPort port_;
    test::FakeKeyboardLayout layout_;
    ProfileStore store_{QString(), log_, ProfileStore::Liveness::detached};
    ProfileOpener opener_{store_, {workspace_, alert_, log_}};
    KeyboardShortcuts shortcuts_{{defaults_, port_, layout_}};
    ProfileHotkeys hotkeys_{store_, opener_, shortcuts_};
};

TEST_F(ProfileHotkeysTest, AProfileOpensOnceWhenItsShortcutIsReleased)
{
    discover({u"1"_s, u"2"_s});
    shortcuts_.setShortcut(controlA, name(u"2"_s));
    hotkeys_.start();
    std::ignore = log_.takeLines();
    press(0);
    port_.repeat();
    EXPECT_TRUE(opened().isEmpty());
    release(0);
    EXPECT_EQ(opened(), QStringList(u"2"_s));
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Open] Opening a chromium profile from the shortcut with 0 links"_s));
}

TEST_F(ProfileHotkeysTest, TheNameIsTheProfilesId)
{
    EXPECT_EQ(name(u"Profile 1"_s).rawValue, u"profile.com.google.Chrome/chromium:Profile 1"_s);
    EXPECT_EQ(name(u"1"_s).defaultShortcut, std::nullopt);
}

TEST_F(ProfileHotkeysTest, NamesStandInTheStoresOrder)
{
    discover({u"2"_s, u"1"_s});
    QStringList names;
    for (const ShortcutName &name : hotkeys_.profileShortcutNames())
        names.append(name.rawValue);
    EXPECT_EQ(names, QStringList({u"profile.com.google.Chrome/chromium:2"_s, u"profile.com.google.Chrome/chromium:1"_s,
                                  u"profile.com.google.Chrome/private"_s}));
}

TEST_F(ProfileHotkeysTest, ProfilesThatComeLaterWorkAndNoneActsTwice)
{
    discover({u"1"_s});
    hotkeys_.start();
    shortcuts_.setShortcut(controlA, name(u"1"_s));
    shortcuts_.setShortcut(controlP, name(u"2"_s));
    discover({u"1"_s, u"2"_s});
    discover({u"2"_s, u"1"_s, u"3"_s});
    for (const std::uint32_t key : {0U, 35U}) {
        press(key);
        release(key);
    }
    EXPECT_EQ(opened(), QStringList({u"1"_s, u"2"_s}));
}

TEST_F(ProfileHotkeysTest, AShortcutThatIsStoredIsRegisteredAtTheStart)
{
    discover({u"1"_s});
    defaults_.setValue(KeyboardShortcuts::userDefaultsKey(name(u"1"_s)), controlA.json());
    defaults_.setValue(KeyboardShortcuts::userDefaultsKey(name(u"of a profile that is gone"_s)), controlP.json());
    hotkeys_.start();
    EXPECT_EQ(port_.takeCalls(), QStringList({u"add 1: 0 4096"_s, u"listen to hotkeys"_s}));
}

TEST_F(ProfileHotkeysTest, AProfileThatIsGoneIsLeftAloneAndMayReturn)
{
    discover({u"1"_s, u"2"_s});
    shortcuts_.setShortcut(controlA, name(u"1"_s));
    hotkeys_.start();
    discover({u"2"_s});
    press(0);
    release(0);
    EXPECT_TRUE(opened().isEmpty());
    EXPECT_TRUE(alert_.shown().isEmpty());
    discover({u"2"_s, u"1"_s});
    press(0);
    release(0);
    EXPECT_EQ(opened(), QStringList(u"1"_s));
}

TEST_F(ProfileHotkeysTest, TwoProfilesWithOneShortcutBothOpen)
{
    discover({u"1"_s, u"2"_s});
    hotkeys_.start();
    shortcuts_.setShortcut(controlA, name(u"2"_s));
    shortcuts_.setShortcut(controlA, name(u"1"_s));
    press(0);
    release(0);
    EXPECT_EQ(opened(), QStringList({u"1"_s, u"2"_s}));
}

TEST_F(ProfileHotkeysTest, HiddenAndRenamedProfilesKeepTheirShortcuts)
{
    discover({u"1"_s});
    shortcuts_.setShortcut(controlA, name(u"1"_s));
    hotkeys_.start();
    store_.rename(store_.profiles().first(), u"Work"_s);
    store_.setHidden(true, store_.profiles().first());
    press(0);
    release(0);
    EXPECT_EQ(opened(), QStringList(u"1"_s));
}

TEST_F(ProfileHotkeysTest, WhileTheMenuIsOpenShortcutsWork)
{
    discover({u"1"_s});
    shortcuts_.setShortcut(controlA, name(u"1"_s));
    hotkeys_.start();
    shortcuts_.setMenuOpen(true);
    press(0);
    release(0);
    EXPECT_EQ(opened(), QStringList(u"1"_s));
}

} // namespace
} // namespace vantrel
