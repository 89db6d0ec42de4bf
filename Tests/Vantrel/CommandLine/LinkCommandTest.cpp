#include "Tests/Vantrel/CommandLine/CommandLineCase.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

class LinkCommandTest : public test::CommandLineCase {
protected:
    LinkCommandTest()
    {
        planted.plantChromium(test::chrome, u"Google Chrome"_s,
                              {{u"Default"_s, u"Work & Play"_s}, {u"Profile 1"_s, u"Müller"_s}});
    }
};

const QString start = u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName="_s;

TEST_F(LinkCommandTest, TheLinkHasNameAndId)
{
    EXPECT_EQ(run({u"link"_s, u"Work & Play"_s}),
              done(start + u"Work%20%26%20Play&profile=com.google.Chrome/chromium:Default\n"_s));
    EXPECT_EQ(run({u"link"_s, u"Google Chrome – Müller"_s}),
              done(start + u"M%C3%BCller&profile=com.google.Chrome/chromium:Profile%201\n"_s));
    EXPECT_EQ(run({u"link"_s, u"com.google.Chrome/private"_s}),
              done(start + u"&profile=com.google.Chrome/private\n"_s));
}

TEST_F(LinkCommandTest, WebLinksAreAppendedInTheirOrder)
{
    EXPECT_EQ(run({u"link"_s, u"com.google.Chrome/private"_s, u"https://example.com/?a=1&b=%20#c"_s, u"example.org"_s}),
              done(start + u"&profile=com.google.Chrome/private&url=https://example.com/?a%3D1%26b%3D%2520%23c"
                           "&url=http://example.org\n"_s));
}

TEST_F(LinkCommandTest, ALinkOfALinkKeepsItsWebLinks)
{
    const QString link = start + u"&profile=com.google.Chrome/private&url=https://a/"_s;
    EXPECT_EQ(run({u"link"_s, link}), done(link + u'\n'));
    EXPECT_EQ(run({u"link"_s, link, u"https://b/"_s}), done(link + u"&url=https://b/\n"_s));
}

TEST_F(LinkCommandTest, TheNameInTheLinkIsTheBrowsersOne)
{
    writeSavedState(R"({"searchedSafari": [], "hidden": [], "profiles": [],
                        "customNames": {"com.google.Chrome/chromium:Default": "Mine"}})");
    EXPECT_EQ(run({u"link"_s, u"Mine"_s}),
              done(start + u"Work%20%26%20Play&profile=com.google.Chrome/chromium:Default\n"_s));
}

TEST_F(LinkCommandTest, SafariHasLinksWhereThereIsOne)
{
    planted.workspace.install(test::safari, u"Safari"_s);
    EXPECT_EQ(
        run({u"link"_s, u"Safari – Private Window"_s}),
        done(u"vantrel://?browserBundleIdentifier=com.apple.Safari&profileName=&profile=com.apple.Safari/private\n"_s));
}

TEST_F(LinkCommandTest, NothingIsStarted)
{
    EXPECT_EQ(run({u"link"_s, u"Müller"_s}).status, ExitStatus::done);
    EXPECT_TRUE(planted.workspace.openings().isEmpty());
}

TEST_F(LinkCommandTest, AnUnknownProfileHasNone)
{
    const Answer answer = run({u"link"_s, u"nowhere"_s});
    EXPECT_EQ(answer.status, ExitStatus::failed);
    EXPECT_EQ(answer.results, QString());
    EXPECT_TRUE(answer.messages.startsWith(u"vantrel: There is no profile “nowhere”."_s));
}

} // namespace
} // namespace vantrel
