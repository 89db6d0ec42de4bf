#include "Vantrel/ProfileMenu.h"

#include "KeyboardShortcuts/ModifierFlags.h"
#include "Tests/Fakes/FakeHotKeyPort.h"
#include "Tests/Fakes/FakeKeyboardLayout.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeUserDefaults.h"
#include "Tests/VantrelKit/Samples.h"
#include "Vantrel/KeyEquivalent.h"
#include "Vantrel/ProfileHotkeys.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Kind = MenuItem::Kind;

/// "# HEADER", "(TEXT)", "-", "TITLE [SHORTCUT] <ID>".
QStringList described(const Menu &menu)
{
    QStringList rows;
    for (const MenuItem &item : menu) {
        const QString shortcut = item.shortcut.toString(QKeySequence::PortableText);
        switch (item.kind) {
        case Kind::header: rows.append(u"# "_s + item.title); break;
        case Kind::text: rows.append(u'(' + item.title + u')'); break;
        case Kind::separator: rows.append(u"-"_s); break;
        case Kind::command: rows.append(u"%1 [%2] <%3>"_s.arg(item.title, shortcut, item.id)); break;
        }
    }
    return rows;
}

const QStringList fixedRows{u"-"_s, u"Settings… [Ctrl+,] <settings>"_s, u"-"_s, u"Quit Vantrel [Ctrl+Q] <quit>"_s};

class ProfileMenuTest : public testing::Test {
protected:
    void fill(const QString &notation, const QList<Browser> &browsers)
    {
        store_.setBrowsers(browsers);
        DiscoveryResults results;
        for (const Profile &profile : test::profiles(notation)) {
            auto &result = results[profile.browserBundleID];
            result->append({profile.name, std::get<ProfileTarget::Chromium>(profile.target.value).folder});
        }
        store_.apply(results);
    }

    [[nodiscard]] Menu menu() { return profileMenu(store_, actions_); }

    [[nodiscard]] MenuItem row(const QString &title)
    {
        for (const MenuItem &item : menu()) {
            if (item.title == title)
                return item;
        }
        return {};
    }

    void note(const QString &what) { done_.append(what); }

    const Browser brave_{test::brave, u"Brave & Co_"_s, {}, BrowserFamily::chromium};
    const Browser chrome_{test::chrome, u"Chrome"_s, {}, BrowserFamily::chromium};
    test::FakeLog log_;
    ProfileStore store_{QString(), log_, ProfileStore::Liveness::detached};
    QStringList done_;
    ProfileMenuActions actions_{
        .open = [this](const Profile &profile) { note(u"open "_s + profile.id()); },
        .findProfiles = [this] { note(u"find"_s); },
        .showSettings = [this] { note(u"settings"_s); },
        .quit = [this] { note(u"quit"_s); },
        .icon = [](const Profile &, int pixels) { return QImage(pixels, pixels, QImage::Format_ARGB32_Premultiplied); },
        .iconPNG = [](const Profile &, int pixels) { return QByteArray::number(pixels); },
    };
};

TEST_F(ProfileMenuTest, WithoutProfilesItHasItsFixedRowsOnly)
{
    EXPECT_EQ(described(menu()),
              QStringList({u"(No profiles to show)"_s, u"Find Profiles… [] <findProfiles>"_s}) + fixedRows);
}

TEST_F(ProfileMenuTest, ProfilesStandBelowTheirBrowsersInTheStoresOrder)
{
    fill(u"c:2=Two c:1=One b:1=Mine"_s, {brave_, chrome_});
    EXPECT_EQ(described(menu()), QStringList({
                                     u"# Brave & Co_"_s,
                                     u"Mine [] <profile.com.brave.Browser/chromium:1>"_s,
                                     u"Incognito Window [] <profile.com.brave.Browser/private>"_s,
                                     u"# Chrome"_s,
                                     u"Two [] <profile.com.google.Chrome/chromium:2>"_s,
                                     u"One [] <profile.com.google.Chrome/chromium:1>"_s,
                                     u"Incognito Window [] <profile.com.google.Chrome/private>"_s,
                                 }) + fixedRows);
}

TEST_F(ProfileMenuTest, HiddenProfilesAreLeftOutAndTheUsersNamesAreShown)
{
    fill(u"c:1=One c:2=Two"_s, {chrome_});
    store_.setHidden(true, store_.profiles()[0]);
    store_.rename(store_.profiles()[1], u"Deux"_s);
    EXPECT_EQ(described(menu()).first(3),
              QStringList({u"# Chrome"_s, u"Deux [] <profile.com.google.Chrome/chromium:2>"_s,
                           u"Incognito Window [] <profile.com.google.Chrome/private>"_s}));
}

TEST_F(ProfileMenuTest, WhenAllIsHiddenThereIsNothingToShow)
{
    fill(u"c:1=One"_s, {chrome_});
    for (const Profile &profile : store_.profiles())
        store_.setHidden(true, profile);
    EXPECT_EQ(described(menu()).first(), u"(No profiles to show)"_s);
}

TEST_F(ProfileMenuTest, EachRowDoesWhatItSays)
{
    row(u"Find Profiles…"_s).action();
    fill(u"c:1=One"_s, {chrome_});
    for (const QString &title : {u"One"_s, u"Incognito Window"_s, u"Settings…"_s, u"Quit Vantrel"_s})
        row(title).action();
    EXPECT_EQ(done_, QStringList({u"find"_s, u"open com.google.Chrome/chromium:1"_s,
                                  u"open com.google.Chrome/private"_s, u"settings"_s, u"quit"_s}));
}

TEST_F(ProfileMenuTest, AnyNameIsATitleAsItIs)
{
    for (const QString &name : test::oddTexts()) {
        fill(u"c:1"_s, {chrome_});
        store_.rename(store_.profiles().first(), name);
        EXPECT_EQ(menu()[1].title, store_.displayName(store_.profiles().first()));
    }
}

TEST_F(ProfileMenuTest, ProfilesHaveIconsInAnySize)
{
    fill(u"c:1=One"_s, {chrome_});
    EXPECT_EQ(row(u"One"_s).icon(32).size(), QSize(32, 32));
    EXPECT_EQ(row(u"One"_s).iconPNG(32), "32");
    EXPECT_FALSE(row(u"Settings…"_s).icon);
}

TEST_F(ProfileMenuTest, AProfilesShortcutIsShownAsLongAsItHasOne)
{
    test::FakeUserDefaults defaults;
    test::FakeHotKeyPort port;
    const test::FakeKeyboardLayout layout;
    KeyboardShortcuts shortcuts({defaults, port, layout});
    fill(u"c:1=One"_s, {chrome_});
    actions_.shortcut = [&](const Profile &profile) {
        return keyEquivalent(shortcuts.getShortcut(ProfileHotkeys::shortcutName(profile)), layout, QtKeyNames::pc);
    };
    const ShortcutName name = ProfileHotkeys::shortcutName(store_.profiles().first());
    EXPECT_TRUE(row(u"One"_s).shortcut.isEmpty());
    shortcuts.setShortcut(Shortcut{18, CarbonModifier::control | CarbonModifier::option}, name);
    EXPECT_EQ(row(u"One"_s).shortcut, QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_1));
    EXPECT_TRUE(row(u"Incognito Window"_s).shortcut.isEmpty());
    store_.rename(store_.profiles().first(), u"Uno"_s);
    EXPECT_EQ(row(u"Uno"_s).shortcut, QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_1));
    shortcuts.setShortcut(std::nullopt, name);
    EXPECT_TRUE(row(u"Uno"_s).shortcut.isEmpty());
}

} // namespace
} // namespace vantrel
