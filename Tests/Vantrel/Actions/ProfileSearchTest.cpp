#include "Vantrel/Actions/ProfileSearch.h"

#include "Tests/Vantrel/Actions/ActionsFixture.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr qsizetype enough = 100;

class ProfileSearchTest : public test::ActionsFixture {
protected:
    /// The ids' ends of what is found, with the links after them.
    [[nodiscard]] QStringList search(const QString &text, qsizetype limit = enough)
    {
        QStringList found;
        for (const ProfileSearch::Match &match : search_.matches(SearchTerms::parse({text}), limit))
            found.append((QStringList(titles_.find(match.profileID)->entity.displayRepresentation) +
                          QUrl::toStringList(match.links))
                             .join(u' '));
        return found;
    }

    ProfileSearch search_{titles_};
};

TEST_F(ProfileSearchTest, EveryWordMustBeContainedInAnyOrder)
{
    for (const QString &text : {u"chrome work"_s, u"work chrome"_s, u"goo ork"_s, u"Google Chrome – Work"_s})
        EXPECT_EQ(search(text), QStringList(u"Google Chrome – Work"_s)) << text.toStdString();
    EXPECT_EQ(search(u"chrome nobody"_s), QStringList());
}

TEST_F(ProfileSearchTest, NothingFindsNothing)
{
    EXPECT_EQ(search(QString()), QStringList());
    EXPECT_EQ(search(u"  "_s), QStringList());
}

TEST_F(ProfileSearchTest, BetterFitsComeFirstAndTheRestInListOrder)
{
    discover(test::chrome, {u"1=At work"_s, u"2=Workshop"_s, u"3=Work"_s, u"4=workbench"_s});
    EXPECT_EQ(search(u"Work"_s),
              QStringList({u"Google Chrome – Work"_s, u"Google Chrome – Workshop"_s, u"Google Chrome – workbench"_s,
                           u"Brave – Homework"_s, u"Google Chrome – At work"_s}));
    EXPECT_EQ(search(u"work"_s, 2), QStringList({u"Google Chrome – Work"_s, u"Google Chrome – Workshop"_s}));
    EXPECT_EQ(search(u"work"_s, 0), QStringList());
}

TEST_F(ProfileSearchTest, HiddenProfilesAndThoseWithoutABrowserAreLeftOut)
{
    store_.setHidden(true, profile(u"com.google.Chrome/chromium:Default"_s));
    EXPECT_EQ(search(u"work"_s), QStringList(u"Brave – Homework"_s));
    EXPECT_EQ(search(u"behind"_s), QStringList());
}

TEST_F(ProfileSearchTest, ALinkGoesWithTheProfilesThatTheOtherWordsFind)
{
    EXPECT_EQ(search(u"chrome work https://example.org/?q=work"_s),
              QStringList(u"Google Chrome – Work https://example.org/?q=work"_s));
    EXPECT_EQ(search(u"https://b.example work http://a.example chr"_s),
              QStringList(u"Google Chrome – Work https://b.example http://a.example"_s));
}

TEST_F(ProfileSearchTest, ALinkAloneIsOfferedForEveryProfile)
{
    const QStringList found = search(u"https://example.org"_s);
    EXPECT_EQ(found.size(), 5);
    EXPECT_EQ(found.first(), u"Brave – Homework https://example.org"_s);
}

TEST_F(ProfileSearchTest, AMatchIsGivenBackByItsId)
{
    const QList<ProfileSearch::Match> plain = search_.matches(SearchTerms::parse({u"office"_s}), enough);
    EXPECT_EQ(plain.first().id(), u"com.google.Chrome/chromium:Profile 1"_s);
    const QString typed = u"office https://example.org/?a=b&c=%20+ü http://example.org/#x"_s;
    for (const ProfileSearch::Match &match : search_.matches(SearchTerms::parse({typed}), enough) + plain) {
        const auto back = ProfileSearch::Match::of(match.id());
        ASSERT_TRUE(back) << match.id().toStdString();
        EXPECT_EQ(back->profileID, match.profileID);
        EXPECT_EQ(back->links, match.links);
    }
}

TEST_F(ProfileSearchTest, OtherTextsAreNoIds)
{
    EXPECT_FALSE(ProfileSearch::Match::of(QString()));
    EXPECT_FALSE(ProfileSearch::Match::of(u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=Work"_s));
}

} // namespace
} // namespace vantrel
