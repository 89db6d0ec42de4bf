#include "VantrelKit/ProfilesIni.h"

#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <gtest/gtest.h>

#include <expected>
#include <random>
#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// "NAME in FOLDER; …", with "/data" as the data folder.
QString parsed(const QString &text)
{
    return test::described(
        std::expected<QList<DiscoveredProfile>, ProfileDiscoveryError>(parseProfilesINI(text, u"/data"_s)));
}

/// The text of one profile section with these lines.
QString section(const QString &lines)
{
    return u"[Profile0]\n"_s + lines;
}

TEST(ProfilesIni, TheProfilesComeInTheOrderOfTheirSections)
{
    const QString text = u"[General]\nStartWithLastProfile=1\nVersion=2\n\n"
                         "[Profile1]\nName=Work\nIsRelative=1\nPath=Profiles/abc.work\n\n"
                         "[Profile0]\nName=default\nIsRelative=1\nPath=Profiles/xyz.default\nDefault=1\n"_s;
    EXPECT_EQ(parsed(text), u"Work in /data/Profiles/abc.work; default in /data/Profiles/xyz.default"_s);
}

TEST(ProfilesIni, AnAbsolutePathStaysAsItIs)
{
    EXPECT_EQ(parsed(section(u"Name=A\nIsRelative=0\nPath=/Volumes/Data/ff"_s)), u"A in /Volumes/Data/ff"_s);
    EXPECT_EQ(parsed(section(u"Name=A\nIsRelative=0\nPath=/Volumes/Data/ff/"_s)), u"A in /Volumes/Data/ff/"_s);
    EXPECT_EQ(parsed(section(u"Name=A\nIsRelative=0\nPath=Profiles/x"_s)), u"A in Profiles/x"_s);
}

TEST(ProfilesIni, ARelativePathIsBelowTheDataFolder)
{
    EXPECT_EQ(parsed(section(u"Name=A\nPath=Profiles/x"_s)), u"A in /data/Profiles/x"_s);
    EXPECT_EQ(parsed(section(u"Name=A\nIsRelative=1\nPath=Profiles/x/"_s)), u"A in /data/Profiles/x"_s);
    EXPECT_EQ(parsed(section(u"Name=A\nIsRelative=1\nPath=/Profiles/x"_s)), u"A in /data/Profiles/x"_s);
    EXPECT_EQ(parsed(section(u"Name=A\nPath=../x"_s)), u"A in /data/../x"_s);
}

TEST(ProfilesIni, OnlyOneMakesAPathRelative)
{
    for (const QString &value : {u"0"_s, u""_s, u"true"_s, u"yes"_s, u"2"_s, u"01"_s, u"1x"_s, u"+1"_s, u"1 1"_s})
        EXPECT_EQ(parsed(section(u"Path=x\nIsRelative="_s + value)), u"x in x"_s) << value.toStdString();
    for (const QString &value : {u"1"_s, u" 1 "_s, u"\t1"_s})
        EXPECT_EQ(parsed(section(u"Path=x\nIsRelative="_s + value)), u"x in /data/x"_s) << value.toStdString();
    EXPECT_EQ(parsed(section(u"Path=x\nIsRelative=0\nIsRelative=1"_s)), u"x in /data/x"_s);
}

TEST(ProfilesIni, AProfileWithoutANameIsNamedByItsPath)
{
    EXPECT_EQ(parsed(section(u"Path=Profiles/xyz.default"_s)), u"xyz.default in /data/Profiles/xyz.default"_s);
    EXPECT_EQ(parsed(section(u"Name=\nPath=Profiles/xyz.default"_s)), u"xyz.default in /data/Profiles/xyz.default"_s);
    EXPECT_EQ(parsed(section(u"Name=  \nPath=x/y/"_s)), u"y in /data/x/y"_s);
    EXPECT_EQ(parsed(section(u"IsRelative=0\nPath=/a/b"_s)), u"b in /a/b"_s);
}

TEST(ProfilesIni, ASectionWithoutAPathIsNoProfile)
{
    EXPECT_EQ(parsed(section(u"Name=A\nIsRelative=1"_s)), u"no profiles"_s);
    EXPECT_EQ(parsed(u"[Profile0]\n[Profile1]\nPath=x\n[Profile2]"_s), u"x in /data/x"_s);
}

TEST(ProfilesIni, AnEmptyPathIsAPathAllTheSame)
{
    EXPECT_EQ(parsed(section(u"Name=A\nPath="_s)), u"A in /data"_s);
}

TEST(ProfilesIni, EverySectionWhoseNameBeginsWithProfileIsOne)
{
    for (const QString &name :
         {u"Profile0"_s, u"Profile12"_s, u"Profile"_s, u"ProfileX"_s, u"Profile 1"_s, u"Profiles"_s})
        EXPECT_EQ(parsed(u"["_s + name + u"]\nPath=x"_s), u"x in /data/x"_s) << name.toStdString();
    for (const QString &name :
         {u"profile0"_s, u"PROFILE0"_s, u" Profile0"_s, u"General"_s, u"Install4F96D1932A9F858E"_s, u""_s,
          u"BackgroundTasksProfiles"_s, u"Prof"_s, u"[Profile0"_s})
        EXPECT_EQ(parsed(u"["_s + name + u"]\nPath=x"_s), u"no profiles"_s) << name.toStdString();
}

TEST(ProfilesIni, BlanksAndTabsAroundLinesKeysAndValuesDoNotCount)
{
    EXPECT_EQ(parsed(u" \t[Profile0]\t \n  Name = My Profile  \n\tPath\t=\tx y\t\n"_s), u"My Profile in /data/x y"_s);
}

TEST(ProfilesIni, OtherWhiteSpaceBelongsToTheText)
{
    EXPECT_EQ(parsed(section(u"Name=\u00a0A\u3000\nPath=x"_s)), u"\u00a0A\u3000 in /data/x"_s);
    EXPECT_EQ(parsed(section(u"\u00a0Name=A\nPath=x"_s)), u"x in /data/x"_s);
}

TEST(ProfilesIni, CommentsAndEmptyLinesArePassedOver)
{
    EXPECT_EQ(
        parsed(u"; [Profile9]\n# Path=y\n\n[Profile0]\n;Path=a\n  ; Path=b\n#Name=c\n\t# Name=d\n\n \t \nPath=x"_s),
        u"x in /data/x"_s);
}

TEST(ProfilesIni, ASignOfCommentsWithinALineIsPartOfIt)
{
    EXPECT_EQ(parsed(section(u"Name=A ; B # C\nPath=x;#"_s)), u"A ; B # C in /data/x;#"_s);
}

TEST(ProfilesIni, LinesWithoutAnEqualsSignArePassedOver)
{
    EXPECT_EQ(parsed(section(u"Name\nPath=x\nPath\nNonsense\n[Profile1\nProfile1]\n["_s)), u"x in /data/x"_s);
}

TEST(ProfilesIni, AValueReachesFromTheFirstEqualsSignToTheEnd)
{
    EXPECT_EQ(parsed(section(u"Name=a=b==c\nPath==x="_s)), u"a=b==c in /data/=x="_s);
    EXPECT_EQ(parsed(section(u"=Name\nPath=x"_s)), u"x in /data/x"_s);
}

TEST(ProfilesIni, KeysAreComparedExactly)
{
    EXPECT_EQ(parsed(section(u"name=a\nNAME=b\nNames=c\npath=y\nPATH=z\nisrelative=0\nDefault=1\nPath=x"_s)),
              u"x in /data/x"_s);
}

TEST(ProfilesIni, ALaterLineOverridesAnEarlierOne)
{
    EXPECT_EQ(parsed(section(u"Name=a\nPath=y\nName=b\nPath=x"_s)), u"b in /data/x"_s);
    EXPECT_EQ(parsed(section(u"Name=a\nPath=x\nName="_s)), u"x in /data/x"_s);
}

TEST(ProfilesIni, ASectionStartsAnew)
{
    EXPECT_EQ(parsed(u"[Profile0]\nName=A\nPath=a\nIsRelative=0\n[Profile1]\nPath=b\n[Profile2]\nName=C"_s),
              u"A in a; b in /data/b"_s);
    EXPECT_EQ(parsed(u"[Profile0]\nPath=a\n[General]\nPath=g\nName=G\n[Profile1]\nPath=b"_s),
              u"a in /data/a; b in /data/b"_s);
}

TEST(ProfilesIni, SectionsOfOneNameAreProfilesOfTheirOwn)
{
    EXPECT_EQ(parsed(u"[Profile0]\nPath=a\n[Profile0]\nPath=b\n[Profile0]\nPath=a"_s),
              u"a in /data/a; b in /data/b; a in /data/a"_s);
}

TEST(ProfilesIni, LinesBeforeTheFirstSectionAreDropped)
{
    EXPECT_EQ(parsed(u"Name=A\nPath=a\nIsRelative=0\n[Profile0]\nPath=b"_s), u"b in /data/b"_s);
    EXPECT_EQ(parsed(u"Name=A\nPath=a"_s), u"no profiles"_s);
}

TEST(ProfilesIni, EveryLineEndCounts)
{
    for (const QString &end : {u"\n"_s, u"\r\n"_s, u"\r"_s, u"\u0085"_s, u"\u2028"_s, u"\u2029"_s, u"\v"_s, u"\f"_s,
                               u"\n\n\n"_s, u"\n\r"_s}) {
        const QStringList lines{u"[Profile0]"_s, u"Name=A B"_s, u"Path=x"_s, u"[Profile1]"_s, u"Path=y"_s};
        EXPECT_EQ(parsed(lines.join(end)), u"A B in /data/x; y in /data/y"_s) << end.toStdString();
        EXPECT_EQ(parsed(end + lines.join(end) + end), u"A B in /data/x; y in /data/y"_s) << end.toStdString();
    }
    EXPECT_EQ(parsed(section(u"Name=a\tb\x1c\x1d\x1e\x1f\x0ez\u00a0\x08\u2027\u202a\u0084\u0086\nPath=x"_s)),
              u"a\tb\x1c\x1d\x1e\x1f\x0ez\u00a0\x08\u2027\u202a\u0084\u0086 in /data/x"_s);
}

TEST(ProfilesIni, AnyNameOfOneLineIsReadAsItIs)
{
    for (const QString &text : test::oddTexts() + test::loneSurrogates()) {
        const bool hasLineEnd = std::ranges::any_of(
            text, [](QChar character) { return u"\n\r\v\f\u0085\u2028\u2029"_s.contains(character); });
        if (hasLineEnd)
            continue;
        const auto profiles = parseProfilesINI(section(u"Path=x\nName="_s + text), u"/data"_s);
        ASSERT_EQ(profiles.size(), 1);
        const bool isEmpty = text.trimmed().isEmpty();
        const bool hasBlanksAround = text.trimmed() != text;
        EXPECT_EQ(profiles[0].name, isEmpty ? u"x"_s : hasBlanksAround ? text.trimmed() : text);
    }
}

TEST(ProfilesIni, TextWithoutProfilesGivesNone)
{
    for (const QString &text :
         QStringList{{}, u""_s, u"\n"_s, u"[General]"_s, u"[]"_s, u"["_s, u"]"_s, u"="_s, u"[=]"_s} + test::oddTexts() +
             test::loneSurrogates())
        EXPECT_EQ(parsed(text), u"no profiles"_s);
}

TEST(ProfilesIni, ThereAreNoPictures)
{
    EXPECT_EQ(parseProfilesINI(section(u"Name=A\nPath=x"_s), u"/data"_s),
              QList<DiscoveredProfile>({{u"A"_s, u"/data/x"_s, std::nullopt}}));
}

TEST(ProfilesIni, TenThousandSectionsAreRead)
{
    QString text;
    for (int number = 0; number < 10000; ++number)
        text += u"[Profile%1]\r\nName=n%1\r\nIsRelative=1\r\nPath=p%1\r\n\r\n"_s.arg(number);
    const auto profiles = parseProfilesINI(text, u"/data"_s);
    ASSERT_EQ(profiles.size(), 10000);
    EXPECT_EQ(profiles[9999], (DiscoveredProfile{u"n9999"_s, u"/data/p9999"_s}));
}

TEST(ProfilesIni, AnyTextIsReadWithoutACrash)
{
    static const QString characters = u"[]=;#\n\r\t PNathIsRelv10/\u00e9"_s;
    std::mt19937 engine(20240608);
    std::uniform_int_distribution<qsizetype> index(0, characters.size() - 1);
    for (int round = 0; round < 5000; ++round) {
        QString text = u"[Profile0]\nPath=x\n"_s;
        for (int left = 0; left < 40; ++left)
            text += characters[index(engine)];
        EXPECT_GE(parseProfilesINI(text, u"/data"_s).size(), 1) << text.toStdString();
    }
}

} // namespace
} // namespace vantrel
