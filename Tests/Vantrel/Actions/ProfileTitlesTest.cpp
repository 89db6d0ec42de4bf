#include "Vantrel/Actions/ProfileTitles.h"

#include "Tests/Vantrel/Actions/ActionsFixture.h"
#include "Tests/Vantrel/EventLoop.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class ProfileTitlesTest : public test::ActionsFixture {
protected:
    [[nodiscard]] QStringList titles()
    {
        QStringList titles;
        for (const ProfileTitles::Row &row : titles_.rows())
            titles.append(row.entity.displayRepresentation);
        return titles;
    }
};

TEST_F(ProfileTitlesTest, StandBrowserByBrowserAndThoseWithoutOneLast)
{
    EXPECT_EQ(titles(),
              QStringList({u"Brave – Homework"_s, u"Brave – Incognito Window"_s, u"Google Chrome – Work"_s,
                           u"Google Chrome – Home Office"_s, u"Google Chrome – Incognito Window"_s,
                           u"com.microsoft.edgemac – Left Behind"_s, u"com.microsoft.edgemac – InPrivate Window"_s}));
    EXPECT_FALSE(titles_.rows().last().isInstalled);
}

TEST_F(ProfileTitlesTest, FollowEveryChangeOfTheStoreAtOnce)
{
    const QString id = u"com.google.Chrome/chromium:Default"_s;
    // What was folded before must not be taken for the new name's.
    ASSERT_EQ(titles_.find(id)->foldedName, u"work"_s);
    store_.rename(profile(id), u"Büro"_s);
    ASSERT_NE(titles_.find(id), nullptr);
    EXPECT_EQ(titles_.find(id)->entity.displayRepresentation, u"Google Chrome – Büro"_s);
    EXPECT_EQ(titles_.find(id)->foldedName, u"buro"_s);
    EXPECT_EQ(titles_.find(id)->foldedTitle, u"google chrome – buro"_s);
    install({{test::chrome, u"Krôm"_s}});
    EXPECT_EQ(titles_.find(id)->foldedTitle, u"krom – buro"_s);
    store_.setHidden(true, profile(id));
    EXPECT_TRUE(titles_.find(id)->isHidden);
    discover(test::chrome, {u"Profile 1=Home Office"_s});
    EXPECT_EQ(titles_.find(id), nullptr);
    install({});
    EXPECT_FALSE(titles_.rows().first().isInstalled);
}

TEST_F(ProfileTitlesTest, TellOfTheChangesOfATurnOnceAndOnlyOfThose)
{
    test::settle();
    QSignalSpy spy(&titles_, &ProfileTitles::changed);
    store_.rename(profile(u"com.google.Chrome/chromium:Default"_s), u"Büro"_s);
    store_.setHidden(true, profile(u"com.google.Chrome/private"_s));
    EXPECT_EQ(titles().at(2), u"Google Chrome – Büro"_s);
    EXPECT_EQ(spy.size(), 0);
    test::settle();
    EXPECT_EQ(spy.size(), 1);
    discover(test::brave, {u"Default=Homework"_s});
    test::settle();
    EXPECT_EQ(spy.size(), 1);
}

} // namespace
} // namespace vantrel
