#include "Vantrel/Settings/ProfileLinks.h"

#include "Tests/Fakes/FakeLog.h"
#include "Tests/VantrelKit/Samples.h"
#include "VantrelKit/LaunchLink.h"

#include <QProcess>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class LinkExampleTest : public testing::Test {
protected:
    test::FakeLog log_;
    ProfileStore store_{QString(), log_, ProfileStore::Liveness::detached};
};

TEST_F(LinkExampleTest, NamesSafariWhereThereIsOne)
{
    EXPECT_EQ(
        linkExample(store_, {.linkCommand = u"open"_s}, true),
        u"open \"vantrel://?browserBundleIdentifier=com.apple.Safari&profileName=Work&url=https://example.org\""_s);
}

TEST_F(LinkExampleTest, ElsewhereItOpensTheFirstProfileThatHasAName)
{
    store_.setBrowsers({{test::chrome, u"Chrome"_s, QUrl(), BrowserFamily::chromium}});
    store_.apply({{test::chrome, QList<DiscoveredProfile>{{u"Profile 1"_s, u"At \"Home\""_s}}}});
    store_.move(store_.browsers().first(), {1}, 0);
    const QString example = linkExample(store_, {.linkCommand = u"xdg-open"_s}, false);
    ASSERT_TRUE(example.startsWith(u"xdg-open \""_s) && example.endsWith(u'"')) << example.toStdString();
    const QString text = example.sliced(10).chopped(1);
    // Nothing that a shell would take for something else, within double quotes.
    EXPECT_FALSE(text.contains(u'"') || text.contains(u'$') || text.contains(u'`') || text.contains(u'\\'));
    const auto link = LaunchLink::parse(text);
    ASSERT_TRUE(link.has_value());
    EXPECT_EQ(link->profileID, store_.profiles().last().id());
    EXPECT_EQ(link->urls, QList<QUrl>{QUrl(u"https://example.org"_s)});
}

TEST_F(LinkExampleTest, WithoutProfilesItIsStillALink)
{
    const QString example = linkExample(store_, {.linkCommand = u"xdg-open"_s}, false);
    EXPECT_TRUE(LaunchLink::parse(example.sliced(10).chopped(1)).has_value()) << example.toStdString();
}

TEST(OpenCommand, AShellReadsTheIdAsItIs)
{
    for (const QString &text : test::oddTexts()) {
        // No argument of a program can hold it.
        if (text.contains(u'\0'))
            continue;
        QProcess shell;
        // What would be the program prints what it was given.
        shell.start(u"/bin/sh"_s, {u"-c"_s, u"vantrel() { printf %s \"$2\"; }; "_s + openCommand(text)});
        ASSERT_TRUE(shell.waitForFinished()) << text.toStdString();
        EXPECT_EQ(QString::fromUtf8(shell.readAllStandardOutput()), text);
    }
}

} // namespace
} // namespace vantrel
