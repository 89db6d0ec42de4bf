#include "Vantrel/Settings/BrowserSection.h"

#include "Tests/Fakes/FakeLog.h"
#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const Browser safari{test::safari, u"Safari"_s, QUrl(), BrowserFamily::safari};
const Browser chrome{test::chrome, u"Google Chrome"_s, QUrl(), BrowserFamily::chromium};

class BrowserSectionTest : public testing::Test {
protected:
    [[nodiscard]] QList<BrowserSection> sections() const { return BrowserSection::all(store_, facts_); }

    /// Chrome has these folders.
    void discover(const QStringList &folders)
    {
        QList<DiscoveredProfile> profiles;
        for (const QString &folder : folders)
            profiles.append({folder, folder});
        store_.apply({{test::chrome, profiles}});
    }

    void fail(const ProfileDiscoveryError &error) { store_.apply({{test::chrome, std::unexpected(error)}}); }

    test::FakeLog log_;
    ProfileStore store_{QString(), log_, ProfileStore::Liveness::detached};
    bool canRequestAccess_ = true;
    BrowserSection::Facts facts_{
        .canRequestAccess = [this](const QString &) { return canRequestAccess_; },
        .dataFolders = [](const QString &) { return QStringList{u"/home/ann/.config/google-chrome"_s}; },
    };
};

TEST_F(BrowserSectionTest, NoBrowserNoSection)
{
    EXPECT_TRUE(sections().isEmpty());
}

TEST_F(BrowserSectionTest, ASafariThatWasNeverSearchedOffersItAndHasNoRows)
{
    store_.setBrowsers({safari});
    ASSERT_EQ(sections().size(), 1);
    const BrowserSection section = sections().first();
    EXPECT_EQ(section.browser, safari);
    EXPECT_EQ(section.search, (BrowserSection::Search{u"Find Profiles"_s, true}));
    EXPECT_TRUE(section.profiles.isEmpty());
    const SettingsNote note{
        .symbol = u"magnifyingglass"_s,
        .text = u"Find Profiles opens Safari and reads its profiles from the File menu. macOS asks to allow "
                "Accessibility and to let Vantrel control Safari and System Events."_s,
    };
    EXPECT_EQ(section.notes, QList<SettingsNote>{note});
}

TEST_F(BrowserSectionTest, AfterASearchItCanBeSearchedAgainAndTheNoteIsGone)
{
    store_.setBrowsers({safari});
    ASSERT_TRUE(store_.beginSafariSearch(test::safari));
    EXPECT_EQ(sections().first().search, (BrowserSection::Search{u"Find Profiles"_s, false}));
    store_.endSafariSearch(test::safari, QList<ProfileTarget::SafariProfile>{{.name = u"Work"_s, .index = 0}});
    const BrowserSection section = sections().first();
    EXPECT_EQ(section.search, (BrowserSection::Search{u"Find Again"_s, true}));
    EXPECT_TRUE(section.notes.isEmpty());
    EXPECT_EQ(section.profiles.size(), 2);
}

TEST_F(BrowserSectionTest, AFailedSearchIsANoteAndKeepsTheFirstOne)
{
    store_.setBrowsers({safari});
    ASSERT_TRUE(store_.beginSafariSearch(test::safari));
    store_.endSafariSearch(test::safari, std::unexpected(PlatformError{u"Safari didn't answer."_s}));
    const QList<SettingsNote> notes = sections().first().notes;
    ASSERT_EQ(notes.size(), 2);
    EXPECT_EQ(notes[0].symbol, u"magnifyingglass"_s);
    EXPECT_EQ(notes[1], (SettingsNote{u"exclamationmark.triangle"_s, u"Safari didn't answer."_s}));
}

TEST_F(BrowserSectionTest, SectionsAndRowsHaveTheStoresOrderWithHiddenProfiles)
{
    store_.setBrowsers({safari, chrome});
    discover({u"1"_s, u"2"_s});
    store_.move(chrome, {1}, 0);
    store_.setHidden(true, store_.profilesOf(test::chrome).first());
    ASSERT_EQ(sections().size(), 2);
    EXPECT_EQ(test::notation(sections()[0].profiles), u"s:private"_s);
    EXPECT_EQ(test::notation(sections()[1].profiles), u"c:2 c:1 c:private"_s);
    EXPECT_FALSE(sections()[1].search.has_value());
}

TEST_F(BrowserSectionTest, WhereTheUserCanGrantAccessTheNoteOffersIt)
{
    store_.setBrowsers({chrome});
    fail(ProfileDiscoveryError::accessDenied(u"/x"_s));
    const SettingsNote note{
        .symbol = u"lock"_s,
        .text = u"macOS asks for your permission before Vantrel reads Google Chrome's profiles."_s,
        .action = SettingsNote::Action::grantAccess,
    };
    EXPECT_EQ(sections().first().notes, QList<SettingsNote>{note});
    EXPECT_EQ(actionTitle(note.action), u"Grant Access…"_s);
}

TEST_F(BrowserSectionTest, ElsewhereTheNoteNamesTheFolderAndWhatToDo)
{
    canRequestAccess_ = false;
    store_.setBrowsers({chrome});
    fail(ProfileDiscoveryError::accessDenied(u"/x"_s));
    ASSERT_EQ(sections().first().notes.size(), 1);
    const SettingsNote note = sections().first().notes.first();
    EXPECT_EQ(note.action, SettingsNote::Action::tryAgain);
    EXPECT_EQ(actionTitle(note.action), u"Try Again"_s);
    EXPECT_TRUE(note.text.contains(u"/home/ann/.config/google-chrome"_s)) << note.text.toStdString();
    EXPECT_FALSE(note.text.contains(u"macOS"_s)) << note.text.toStdString();
}

TEST_F(BrowserSectionTest, AProblemIsShownAsTheStoreHasItAndGoesWithIt)
{
    store_.setBrowsers({chrome});
    fail(ProfileDiscoveryError::readFailed(u"/x"_s, u"No such <b>file</b> & more"_s));
    EXPECT_EQ(sections().first().notes,
              (QList<SettingsNote>{{u"exclamationmark.triangle"_s, u"No such <b>file</b> & more"_s}}));
    discover({u"1"_s});
    EXPECT_TRUE(sections().first().notes.isEmpty());
}

} // namespace
} // namespace vantrel
