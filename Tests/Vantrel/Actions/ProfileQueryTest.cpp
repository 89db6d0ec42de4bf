#include "Vantrel/Actions/ProfileQuery.h"

#include "Tests/Vantrel/Actions/ActionsFixture.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class ProfileQueryTest : public test::ActionsFixture {
protected:
    [[nodiscard]] QStringList matching(const QString &text) const { return test::shown(query_.entitiesMatching(text)); }

    ProfileQuery query_{titles_};
};

const QString work = u"com.google.Chrome/chromium:Default"_s;
const QStringList chromes{u"Google Chrome – Work"_s, u"Google Chrome – Home Office"_s,
                          u"Google Chrome – Incognito Window"_s};

TEST_F(ProfileQueryTest, SuggestsTheProfilesOfInstalledBrowsersBrowserByBrowser)
{
    const QStringList braves{u"Brave – Homework"_s, u"Brave – Incognito Window"_s};
    EXPECT_EQ(test::shown(query_.suggestedEntities()), braves + chromes);
}

TEST_F(ProfileQueryTest, FollowsTheUsersOrderAndKeepsHiddenProfiles)
{
    store_.setHidden(true, profile(work));
    store_.move(*store_.browser(profile(work)), {0}, 2);
    EXPECT_EQ(matching(u"chrome"_s), QStringList({chromes.at(1), chromes.at(0), chromes.at(2)}));
}

TEST_F(ProfileQueryTest, FindsAllProfilesOfABrowserByItsNameInAnyCase)
{
    for (const QString &text : {u"chrome"_s, u"CHROME"_s, u"Chrome"_s, u"gle chr"_s, u"Chróme"_s})
        EXPECT_EQ(matching(text), chromes) << text.toStdString();
}

TEST_F(ProfileQueryTest, FindsAPartOfANameInListOrderNotBestFirst)
{
    EXPECT_EQ(matching(u"WORK"_s), QStringList({u"Brave – Homework"_s, u"Google Chrome – Work"_s}));
    EXPECT_EQ(matching(u"chrome – wo"_s), QStringList(u"Google Chrome – Work"_s));
    EXPECT_EQ(matching(u"chrome work"_s), QStringList());
    EXPECT_EQ(matching(u"behind"_s), QStringList());
}

TEST_F(ProfileQueryTest, FindsNothingForNothing)
{
    EXPECT_EQ(matching(QString()), QStringList());
    EXPECT_EQ(matching(u"\u0301"_s), QStringList());
}

TEST_F(ProfileQueryTest, FindsARenamedProfileUnderItsNewNameWithTheSameId)
{
    store_.rename(profile(work), u"Büro"_s);
    const QList<ProfileEntity> found = query_.entitiesMatching(u"buro"_s);
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found.first().id, work);
    EXPECT_EQ(matching(u"work"_s), QStringList(u"Brave – Homework"_s));
}

TEST_F(ProfileQueryTest, AnEntityHasTheProfilesNamesAndItsPicture)
{
    const ProfileEntity expected{.id = work,
                                 .title = u"Work"_s,
                                 .browser = u"Google Chrome"_s,
                                 .avatar = {std::nullopt, false, work, u"Work"_s},
                                 .displayRepresentation = u"Google Chrome – Work"_s};
    EXPECT_EQ(query_.entities({work}), QList<ProfileEntity>{expected});
    EXPECT_TRUE(query_.entities({u"com.google.Chrome/private"_s}).first().avatar.isPrivate);
}

TEST_F(ProfileQueryTest, GivesEntitiesInTheOrderOfTheirIdsWithoutUnknownOnes)
{
    const QString other = u"com.brave.Browser/chromium:Default"_s;
    const QString left = u"com.microsoft.edgemac/chromium:Default"_s;
    const auto found = query_.entities({work, u"com.google.Chrome/chromium:Gone"_s, left, QString(), other, work});
    EXPECT_EQ(test::shown(found), QStringList({u"Google Chrome – Work"_s, u"com.microsoft.edgemac – Left Behind"_s,
                                               u"Brave – Homework"_s, u"Google Chrome – Work"_s}));
}

} // namespace
} // namespace vantrel
