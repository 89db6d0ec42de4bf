#include "Vantrel/Actions/ProfileSearchIndex.h"

#include "Tests/Fakes/FakeClock.h"
#include "Tests/Fakes/FakeSearchIndex.h"
#include "Tests/Vantrel/Actions/ActionsFixture.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Vantrel/Actions/SystemProfiles.h"
#include "VantrelKit/PNGCoding.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString work = u"com.google.Chrome/chromium:Default"_s;
const QString removal = u"remove all"_s;
const QString addition = u"add Brave – Homework, Brave – Incognito Window, Google Chrome – Work, "
                         "Google Chrome – Home Office, Google Chrome – Incognito Window"_s;

class ProfileSearchIndexTest : public test::ActionsFixture {
protected:
    void rename(const QString &name)
    {
        store_.rename(profile(work), name);
        test::settle();
    }

    test::FakeSearchIndex system_;
    test::FakeClock clock_;
    ProfileIconCache icons_;
    ProfileSearchIndex index_{{titles_, icons_, system_, clock_, log_}};
};

TEST_F(ProfileSearchIndexTest, RemovesEverythingAndAddsThePresentProfiles)
{
    index_.refresh();
    EXPECT_EQ(system_.takeCalls(), QStringList({removal, addition}));
    const SearchIndex::Entry entry = system_.entries().at(2);
    EXPECT_EQ(entry.id, work);
    EXPECT_EQ(entry.name, u"Work"_s);
    EXPECT_EQ(entry.browser, u"Google Chrome"_s);
    EXPECT_EQ(QImage::fromData(entry.picture, "PNG").size(), QSize(systemPicturePixels, systemPicturePixels));
    EXPECT_EQ(clock_.takeSleeps(), QList<int>(1, 500));
}

TEST_F(ProfileSearchIndexTest, FollowsTheStore)
{
    store_.setHidden(true, profile(work));
    install({{test::chrome, u"Google Chrome"_s}});
    discover(test::chrome, {u"Default=Work"_s, u"2=New"_s});
    test::settle();
    EXPECT_EQ(system_.takeCalls(),
              QStringList({removal, u"add Google Chrome – New, Google Chrome – Incognito Window"_s}));
    discover(test::chrome, {u"Default=Work"_s, u"2=New"_s});
    test::settle();
    EXPECT_EQ(system_.takeCalls(), QStringList());
}

TEST_F(ProfileSearchIndexTest, WaitsUntilThingsAreQuiet)
{
    int changes = 3;
    clock_.setMeanwhile([&] {
        if (changes-- > 0)
            index_.refresh();
    });
    index_.refresh();
    EXPECT_EQ(clock_.takeSleeps().size(), 4);
    EXPECT_EQ(system_.takeCalls(), QStringList({removal, addition}));
}

TEST_F(ProfileSearchIndexTest, ANewRefreshTakesTheOlderOnesPlaceOnceItsStepHasEnded)
{
    system_.holdNext();
    index_.refresh();
    rename(u"First"_s);
    rename(u"Second"_s);
    EXPECT_EQ(system_.takeCalls(), QStringList(removal));
    system_.finish();
    EXPECT_EQ(system_.takeCalls(), QStringList({removal, QString(addition).replace(u"– Work"_s, u"– Second"_s)}));
    EXPECT_EQ(system_.entries().size(), 5);
}

TEST_F(ProfileSearchIndexTest, ARefreshThatComesWhileEntriesAreAddedBeginsAnew)
{
    clock_.setMeanwhile([this] { system_.holdNext(); });
    index_.refresh();
    system_.holdNext();
    system_.finish();
    rename(u"Later"_s);
    clock_.setMeanwhile({});
    std::ignore = system_.takeCalls();
    system_.finish();
    EXPECT_EQ(system_.takeCalls(), QStringList({removal, QString(addition).replace(u"– Work"_s, u"– Later"_s)}));
    EXPECT_EQ(system_.entries().size(), 5);
}

TEST_F(ProfileSearchIndexTest, WhatIsCancelledGoesNoFurther)
{
    clock_.setMeanwhile([this] { index_.cancel(); });
    index_.refresh();
    EXPECT_EQ(system_.takeCalls(), QStringList());
    clock_.setMeanwhile({});
    system_.holdNext();
    index_.refresh();
    index_.cancel();
    system_.finish();
    EXPECT_EQ(system_.takeCalls(), QStringList(removal));
    index_.refresh();
    EXPECT_EQ(system_.takeCalls(), QStringList({removal, addition}));
}

TEST_F(ProfileSearchIndexTest, AFailureIsLoggedAndNothingIsAddedToWhatCouldNotBeRemoved)
{
    system_.refuse(u"The index is busy."_s);
    index_.refresh();
    EXPECT_EQ(system_.takeCalls(), QStringList(removal));
    EXPECT_EQ(log_.takeLines(), QStringList(u"[Search] error: Search index not refreshed: The index is busy."_s));
    system_.refuse(QString());
    rename(u"Later"_s);
    EXPECT_EQ(system_.takeCalls().size(), 2);
}

} // namespace
} // namespace vantrel
