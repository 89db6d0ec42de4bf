#include "VantrelKit/ProfileTarget.h"

#include "Tests/VantrelKit/Samples.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr auto safari = BrowserFamily::safari;
constexpr auto chromium = BrowserFamily::chromium;
constexpr auto firefox = BrowserFamily::firefox;

/// Targets that differ from each other in one thing only, each case among them.
QList<ProfileTarget> differentTargets()
{
    return {
        ProfileTarget::safariProfile(u"a"_s, 1),  ProfileTarget::safariProfile(u"a"_s, 2),
        ProfileTarget::safariProfile(u"a"_s, -1), ProfileTarget::safariProfile(u"A"_s, 1),
        ProfileTarget::safariPrivate(),           ProfileTarget::chromium(u"a"_s),
        ProfileTarget::chromium(u"A"_s),          ProfileTarget::chromium({}),
        ProfileTarget::chromiumPrivate(),         ProfileTarget::firefox(u"a"_s),
        ProfileTarget::firefox(u"a/"_s),          ProfileTarget::firefox({}),
        ProfileTarget::firefoxPrivate(),
    };
}

TEST(ProfileTarget, TheKeyIsTheKindAColonAndThePayload)
{
    EXPECT_EQ(ProfileTarget::safariProfile(u"Work"_s, 3).key(), u"safari:Work"_s);
    EXPECT_EQ(ProfileTarget::chromium(u"Profile 1"_s).key(), u"chromium:Profile 1"_s);
    EXPECT_EQ(ProfileTarget::firefox(u"/a/b"_s).key(), u"firefox:/a/b"_s);
    EXPECT_EQ(ProfileTarget::chromium({}).key(), u"chromium:"_s);
}

TEST(ProfileTarget, TheKeyOfEveryPrivateWindowIsPrivate)
{
    EXPECT_EQ(ProfileTarget::safariPrivate().key(), u"private"_s);
    EXPECT_EQ(ProfileTarget::chromiumPrivate().key(), u"private"_s);
    EXPECT_EQ(ProfileTarget::firefoxPrivate().key(), u"private"_s);
}

TEST(ProfileTarget, TheKeyTakesAnyPayloadAsItIs)
{
    for (const QString &text : test::oddTexts() + test::loneSurrogates()) {
        EXPECT_EQ(ProfileTarget::safariProfile(text, 0).key(), QString(u"safari:"_s + text));
        EXPECT_EQ(ProfileTarget::chromium(text).key(), QString(u"chromium:"_s + text));
        EXPECT_EQ(ProfileTarget::firefox(text).key(), QString(u"firefox:"_s + text));
    }
}

TEST(ProfileTarget, TheIndexTakesNoPartInTheKey)
{
    EXPECT_EQ(ProfileTarget::safariProfile(u"Work"_s, 1).key(), ProfileTarget::safariProfile(u"Work"_s, 2).key());
}

TEST(ProfileTarget, ExactlyTheCasesWithoutPayloadArePrivate)
{
    EXPECT_TRUE(ProfileTarget::safariPrivate().isPrivate());
    EXPECT_TRUE(ProfileTarget::chromiumPrivate().isPrivate());
    EXPECT_TRUE(ProfileTarget::firefoxPrivate().isPrivate());
    EXPECT_FALSE(ProfileTarget::safariProfile(u"private"_s, 1).isPrivate());
    EXPECT_FALSE(ProfileTarget::chromium(u"private"_s).isPrivate());
    EXPECT_FALSE(ProfileTarget::firefox({}).isPrivate());
}

TEST(ProfileTarget, EachFamilyHasItsPrivateWindow)
{
    EXPECT_EQ(ProfileTarget::privateWindow(safari), ProfileTarget::safariPrivate());
    EXPECT_EQ(ProfileTarget::privateWindow(chromium), ProfileTarget::chromiumPrivate());
    EXPECT_EQ(ProfileTarget::privateWindow(firefox), ProfileTarget::firefoxPrivate());
}

TEST(ProfileTarget, TheCaseAndAllOfThePayloadCountForEquality)
{
    const QList<ProfileTarget> targets = differentTargets();
    for (qsizetype left = 0; left < targets.size(); ++left) {
        for (qsizetype right = 0; right < targets.size(); ++right)
            EXPECT_EQ(targets[left] == targets[right], left == right) << left << " and " << right;
    }
}

TEST(ProfileTarget, TheCaseAndAllOfThePayloadCountForTheHash)
{
    QSet<size_t> hashes;
    for (const ProfileTarget &target : differentTargets()) {
        hashes.insert(qHash(target));
        EXPECT_EQ(qHash(target, 5), qHash(ProfileTarget(target), 5));
        EXPECT_NE(qHash(target, 5), qHash(target, 6));
    }
    EXPECT_EQ(hashes.size(), differentTargets().size());
}

TEST(ProfileTarget, APrivateKeyGivesTheFamilysPrivateWindow)
{
    for (const BrowserFamily family : allBrowserFamilies)
        EXPECT_EQ(ProfileTarget::fromKey(u"private"_s, family), ProfileTarget::privateWindow(family));
}

TEST(ProfileTarget, AKeyGivesTheTargetOfTheFamilyWhateverItsKind)
{
    for (const QString &kind : {u"safari:"_s, u"chromium:"_s, u"firefox:"_s, u"anything:"_s, u":"_s}) {
        const QString key = kind + u"Work"_s;
        EXPECT_EQ(ProfileTarget::fromKey(key, safari), ProfileTarget::safariProfile(u"Work"_s, -1));
        EXPECT_EQ(ProfileTarget::fromKey(key, chromium), ProfileTarget::chromium(u"Work"_s));
        EXPECT_EQ(ProfileTarget::fromKey(key, firefox), ProfileTarget::firefox(u"Work"_s));
    }
}

TEST(ProfileTarget, AKeyIsSplitAtItsFirstColon)
{
    EXPECT_EQ(ProfileTarget::fromKey(u"safari:a:b:c"_s, safari), ProfileTarget::safariProfile(u"a:b:c"_s, -1));
    EXPECT_EQ(ProfileTarget::fromKey(u"chromium::x"_s, chromium), ProfileTarget::chromium(u":x"_s));
    EXPECT_EQ(ProfileTarget::fromKey(u"firefox:/a:b"_s, firefox), ProfileTarget::firefox(u"/a:b"_s));
}

TEST(ProfileTarget, AKeyWithoutColonOrPayloadIsNotWellFormed)
{
    for (const QString &key : {u""_s, u"Private"_s, u"private "_s, u"chromium"_s, u"chromium:"_s, u":"_s, u"Work"_s}) {
        for (const BrowserFamily family : allBrowserFamilies)
            EXPECT_EQ(ProfileTarget::fromKey(key, family), std::nullopt) << key.toStdString();
    }
}

TEST(ProfileTarget, AKeyNamesNoChromiumFolderOutsideOfTheDataFolder)
{
    for (const QString &folder : {u"."_s, u".."_s, u"/"_s, u"/etc"_s, u"a/b"_s, u"../x"_s, u"x/.."_s})
        EXPECT_EQ(ProfileTarget::fromKey(u"chromium:"_s + folder, chromium), std::nullopt) << folder.toStdString();
    for (const QString &folder : {u"..."_s, u".hidden"_s, u"a."_s, u" "_s})
        EXPECT_EQ(ProfileTarget::fromKey(u"chromium:"_s + folder, chromium), ProfileTarget::chromium(folder));
}

TEST(ProfileTarget, AKeyGivesItsTargetBack)
{
    for (const QString &text : test::oddTexts()) {
        EXPECT_EQ(ProfileTarget::fromKey(ProfileTarget::safariProfile(text, 4).key(), safari),
                  ProfileTarget::safariProfile(text, -1));
        EXPECT_EQ(ProfileTarget::fromKey(ProfileTarget::firefox(text).key(), firefox), ProfileTarget::firefox(text));
        if (!text.contains(u'/')) {
            EXPECT_EQ(ProfileTarget::fromKey(ProfileTarget::chromium(text).key(), chromium),
                      ProfileTarget::chromium(text));
        }
    }
}

TEST(ProfileTarget, TheIndexHoldsAny64BitNumber)
{
    for (const qint64 index : {std::numeric_limits<qint64>::min(), qint64{-1}, std::numeric_limits<qint64>::max()}) {
        const ProfileTarget target = ProfileTarget::safariProfile(u"a"_s, index);
        EXPECT_EQ(std::get<ProfileTarget::SafariProfile>(target.value).index, index);
    }
}

} // namespace
} // namespace vantrel
