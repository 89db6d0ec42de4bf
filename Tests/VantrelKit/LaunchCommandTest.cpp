#include "VantrelKit/LaunchCommand.h"

#include "Tests/VantrelKit/Samples.h"
#include "VantrelKit/KnownBrowsers.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString first = u"https://a.example/1"_s;
const QString second = u"http://b.example/2?x=y&z"_s;
const QString third = u"file:///tmp/three.html"_s;

/// The arguments of each start.
using Starts = QList<QStringList>;

Starts starts(const QString &browser, const ProfileTarget &target, const QStringList &links = {})
{
    QList<QUrl> urls;
    for (const QString &link : links)
        urls.append(QUrl(link));
    Starts result;
    for (const LaunchCommand &command : LaunchCommand::commands(browser, urls, target))
        result.append(command.arguments);
    return result;
}

struct Row {
    QString browser;
    ProfileTarget target;
    QStringList links;
    Starts expected;
};

TEST(LaunchCommand, EveryTargetHasItsArguments)
{
    const auto chromium = ProfileTarget::chromium(u"Profile 2"_s);
    const auto incognito = ProfileTarget::chromiumPrivate();
    const auto firefox = ProfileTarget::firefox(u"/home/a/my profile"_s);
    const auto firefoxPrivate = ProfileTarget::firefoxPrivate();
    const QString mail = u"mailto:a@b.example"_s;
    const std::vector<Row> rows{
        {test::chrome, chromium, {}, {{u"--profile-directory=Profile 2"_s}}},
        {test::chrome, chromium, {first}, {{u"--profile-directory=Profile 2"_s, first}}},
        {test::brave,
         ProfileTarget::chromium(u"Default"_s),
         {first, mail},
         {{u"--profile-directory=Default"_s, first}}},
        {test::edge, chromium, {first, second}, {{u"--profile-directory=Profile 2"_s, first, second}}},
        {u"com.microsoft.edgemac.Beta"_s, incognito, {}, {{u"--inprivate"_s}}},
        {test::edge, incognito, {first, second}, {{u"--inprivate"_s, first, second}}},
        {u"com.vivaldi.Vivaldi"_s, incognito, {first}, {{u"--incognito"_s, first}}},
        {test::chrome, incognito, {}, {{u"--incognito"_s}}},
        {test::unknownBrowser, incognito, {third, first}, {{u"--incognito"_s, third, first}}},
        {test::firefox, firefox, {}, {{u"--profile"_s, u"/home/a/my profile"_s}}},
        {test::firefox, firefox, {first, second}, {{u"--profile"_s, u"/home/a/my profile"_s, first, second}}},
        {test::zen, firefoxPrivate, {}, {{u"--private-window"_s}}},
        {test::zen, firefoxPrivate, {first}, {{u"--private-window"_s, first}}},
        {test::zen,
         firefoxPrivate,
         {first, second, third},
         {{u"--private-window"_s, first}, {u"--private-window"_s, second}, {u"--private-window"_s, third}}},
        {test::firefox, firefoxPrivate, {mail, second}, {{u"--private-window"_s, second}}},
    };
    for (const Row &row : rows)
        EXPECT_EQ(starts(row.browser, row.target, row.links), row.expected) << row.browser.toStdString();
}

TEST(LaunchCommand, SafariIsStartedWithoutArguments)
{
    for (const auto &target : {ProfileTarget::safariProfile(u"Work"_s, 1), ProfileTarget::safariPrivate()}) {
        EXPECT_EQ(starts(test::safari, target), Starts());
        EXPECT_EQ(starts(test::safari, target, {first, second}), Starts());
    }
}

TEST(LaunchCommand, ThePrivateSwitchIsEdgesForEveryChannelOfEdgeOnly)
{
    for (const QString &browser : KnownBrowsers::all()) {
        const QString option = browser.startsWith(u"com.microsoft.edgemac"_s) ? u"--inprivate"_s : u"--incognito"_s;
        EXPECT_EQ(starts(browser, ProfileTarget::chromiumPrivate()), Starts({{option}})) << browser.toStdString();
    }
}

TEST(LaunchCommand, TheTargetDecidesAndNotTheBrowser)
{
    EXPECT_EQ(starts(test::firefox, ProfileTarget::chromium(u"x"_s)), Starts({{u"--profile-directory=x"_s}}));
    EXPECT_EQ(starts(test::edge, ProfileTarget::firefoxPrivate()), Starts({{u"--private-window"_s}}));
    EXPECT_EQ(starts(test::chrome, ProfileTarget::safariPrivate()), Starts());
}

TEST(LaunchCommand, LinksThatNoBrowserShouldGetAreLikeNone)
{
    const QStringList links{u"mailto:a@b.example"_s, u"javascript:alert(1)"_s, u"a.example"_s, u""_s,
                            u"vantrel://?x=y"_s};
    EXPECT_EQ(starts(test::zen, ProfileTarget::firefoxPrivate(), links), Starts({{u"--private-window"_s}}));
    EXPECT_EQ(starts(test::chrome, ProfileTarget::chromiumPrivate(), links), Starts({{u"--incognito"_s}}));
    EXPECT_EQ(starts(test::chrome, ProfileTarget::chromium(u"x"_s), links), Starts({{u"--profile-directory=x"_s}}));
    EXPECT_EQ(starts(test::zen, ProfileTarget::firefox(u"/x"_s), links), Starts({{u"--profile"_s, u"/x"_s}}));
}

TEST(LaunchCommand, SchemesInCapitalsAreKept)
{
    EXPECT_EQ(starts(test::chrome, ProfileTarget::chromium(u"x"_s), {u"HTTPS://a.example/A"_s}),
              Starts({{u"--profile-directory=x"_s, u"https://a.example/A"_s}}));
}

TEST(LaunchCommand, TheOrderAndTheRepetitionsOfLinksStay)
{
    const QStringList links{third, first, second, first};
    EXPECT_EQ(starts(test::chrome, ProfileTarget::chromiumPrivate(), links),
              Starts({QStringList(u"--incognito"_s) + links}));
    EXPECT_EQ(starts(test::zen, ProfileTarget::firefoxPrivate(), links).size(), 4);
    EXPECT_EQ(starts(test::zen, ProfileTarget::firefoxPrivate(), links)[3],
              QStringList({u"--private-window"_s, first}));
}

TEST(LaunchCommand, AnyFolderOrPathIsOneArgument)
{
    for (const QString &text : QStringList(u""_s) + test::oddTexts() + test::loneSurrogates()) {
        EXPECT_EQ(starts(test::chrome, ProfileTarget::chromium(text), {first}),
                  Starts({{u"--profile-directory="_s + text, first}}));
        EXPECT_EQ(starts(test::firefox, ProfileTarget::firefox(text), {first}),
                  Starts({{u"--profile"_s, text, first}}));
    }
}

TEST(LaunchCommand, ALinkIsEncodedAndOneArgument)
{
    EXPECT_EQ(starts(test::chrome, ProfileTarget::chromium(u"x"_s), {u"https://a.example/b c?d=\u00e9"_s}),
              Starts({{u"--profile-directory=x"_s, u"https://a.example/b%20c?d=%C3%A9"_s}}));
}

TEST(LaunchCommand, ManyLinksAreAllPassedOn)
{
    QStringList links;
    for (int number = 0; number < 1000; ++number)
        links.append(u"https://a.example/%1"_s.arg(number));
    EXPECT_EQ(starts(test::chrome, ProfileTarget::chromiumPrivate(), links),
              Starts({QStringList(u"--incognito"_s) + links}));
    EXPECT_EQ(starts(test::firefox, ProfileTarget::firefoxPrivate(), links).size(), 1000);
}

TEST(LaunchCommand, CommandsWithTheSameArgumentsAreEqual)
{
    EXPECT_EQ((LaunchCommand{{first, second}}), (LaunchCommand{{first, second}}));
    EXPECT_NE((LaunchCommand{{first, second}}), (LaunchCommand{{second, first}}));
    EXPECT_NE((LaunchCommand{{first}}), (LaunchCommand{{first, second}}));
}

} // namespace
} // namespace vantrel
