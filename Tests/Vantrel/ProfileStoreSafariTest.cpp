#include "Tests/Fakes/FakeLog.h"
#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Vantrel/ProfileStore.h"
#include "Vantrel/SavedState.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const Browser safari{test::safari, u"Safari"_s, QUrl::fromLocalFile(u"/applications/Safari"_s), BrowserFamily::safari};

QList<ProfileTarget::SafariProfile> safariProfiles(const QStringList &names)
{
    QList<ProfileTarget::SafariProfile> profiles;
    for (const QString &name : names)
        profiles.append({.name = name, .index = profiles.size()});
    return profiles;
}

class ProfileStoreSafariTest : public testing::Test {
protected:
    ProfileStoreSafariTest()
    {
        QObject::connect(&store_, &ProfileStore::changed, &store_, [this] { ++changes_; });
        QObject::connect(&store_, &ProfileStore::profilesChanged, &store_, [this] { ++listChanges_; });
    }

    [[nodiscard]] SavedState saved() const { return SavedState::read(path_).value_or(SavedState()); }
    [[nodiscard]] QString list() const { return test::notation(store_.profiles()); }

    test::TemporaryFolder folder_;
    QString path_ = folder_.path(u"profiles.json"_s);
    test::FakeLog log_;
    ProfileStore store_{path_, log_};
    int changes_ = 0;
    int listChanges_ = 0;
};

TEST_F(ProfileStoreSafariTest, ASearchOfSafariIsUnderWayUntilItEnds)
{
    EXPECT_TRUE(store_.beginSafariSearch(test::safari));
    EXPECT_EQ(store_.searching(), QSet<QString>{test::safari});
    EXPECT_EQ(changes_, 1);
    EXPECT_FALSE(store_.beginSafariSearch(test::safari));
    EXPECT_EQ(changes_, 1);
    store_.endSafariSearch(test::safari, safariProfiles({}));
    EXPECT_TRUE(store_.searching().isEmpty());
    EXPECT_EQ(changes_, 2);
    EXPECT_TRUE(store_.beginSafariSearch(test::safari));
    store_.endSafariSearch(test::safari, std::unexpected(PlatformError{u"No."_s}));
    EXPECT_TRUE(store_.searching().isEmpty());
}

TEST_F(ProfileStoreSafariTest, SafarisProfilesAreTakenInTheirOrderWithTheirPlaces)
{
    store_.endSafariSearch(test::safari, safariProfiles({u"Personal"_s, u"Work"_s}));
    const QList<Profile> expected{
        {test::safari, u"Personal"_s, ProfileTarget::safariProfile(u"Personal"_s, 0)},
        {test::safari, u"Work"_s, ProfileTarget::safariProfile(u"Work"_s, 1)},
        Profile::privateWindow(test::safari),
    };
    EXPECT_EQ(store_.profiles(), expected);
    EXPECT_EQ(store_.searchedSafari(), QSet<QString>{test::safari});
    EXPECT_EQ(saved().profiles, expected);
    EXPECT_EQ(saved().searchedSafari, QSet<QString>{test::safari});
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Profiles] Found 2 Safari profiles"_s));
    EXPECT_EQ(changes_, 1);
    EXPECT_EQ(listChanges_, 1);
}

TEST_F(ProfileStoreSafariTest, ASearchKeepsTheUsersOrderAndDropsWhatIsGone)
{
    const SavedState state{test::profiles(u"c:1 c:private"_s), {}, {}, {}};
    ASSERT_TRUE(state.write(path_));
    store_.load();
    store_.endSafariSearch(test::safari, safariProfiles({u"A"_s, u"B"_s, u"C"_s}));
    store_.move(safari, {2}, 0);
    store_.endSafariSearch(test::safari, safariProfiles({u"New"_s, u"C"_s, u"A"_s}));
    EXPECT_EQ(list(), u"c:1 c:private s:C s:A s:New s:private"_s);
    listChanges_ = 0;
    store_.endSafariSearch(test::safari, safariProfiles({u"New"_s, u"C"_s, u"A"_s}));
    EXPECT_EQ(listChanges_, 0);
}

TEST_F(ProfileStoreSafariTest, AFailedSearchIsAProblemAndChangesNothingElse)
{
    store_.endSafariSearch(test::safari, safariProfiles({u"Work"_s}));
    const QList<Profile> known = store_.profiles();
    ASSERT_TRUE(QFile::remove(path_));
    std::ignore = log_.takeLines();
    store_.endSafariSearch(test::safari, std::unexpected(PlatformError{u"Safari didn't start."_s}));
    EXPECT_EQ(store_.problems().value(test::safari), u"Safari didn't start."_s);
    EXPECT_EQ(store_.profiles(), known);
    EXPECT_EQ(store_.searchedSafari(), QSet<QString>{test::safari});
    EXPECT_EQ(saved().profiles, known);
    EXPECT_EQ(log_.takeLines(),
              QStringList(u"[Profiles] error: Safari's profiles couldn't be read: Safari didn't start."_s));
    store_.endSafariSearch(test::safari, safariProfiles({u"Work"_s}));
    EXPECT_TRUE(store_.problems().isEmpty());
}

TEST_F(ProfileStoreSafariTest, ASafariWhoseFirstSearchFailedCountsAsNeverSearched)
{
    store_.endSafariSearch(test::safari, std::unexpected(PlatformError{u"No."_s}));
    EXPECT_TRUE(store_.searchedSafari().isEmpty());
    store_.endSafariSearch(test::safari, safariProfiles({}));
    EXPECT_EQ(store_.searchedSafari(), QSet<QString>{test::safari});
    EXPECT_EQ(list(), u"s:private"_s);
}

} // namespace
} // namespace vantrel
