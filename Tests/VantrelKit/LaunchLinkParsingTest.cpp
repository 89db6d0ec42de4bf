#include "Tests/VantrelKit/Samples.h"
#include "VantrelKit/LaunchLink.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// A link of Chrome with these further items.
std::optional<LaunchLink> chromeLink(const QString &items)
{
    return LaunchLink::parse(u"vantrel://?browserBundleIdentifier=com.google.Chrome&"_s + items);
}

LaunchLink work(const QList<QUrl> &urls = {})
{
    return {test::chrome, u"Work"_s, std::nullopt, urls};
}

QList<QUrl> webLinks(const QString &items)
{
    const auto link = chromeLink(u"profileName=Work&"_s + items);
    EXPECT_TRUE(link) << items.toStdString();
    return link ? link->urls : QList<QUrl>();
}

TEST(LaunchLinkParsing, SchemeCaseHostPathAndFragmentDoNotMatter)
{
    const QString query = u"?browserBundleIdentifier=com.google.Chrome&profileName=Work"_s;
    for (const QString &before :
         {u"vantrel://"_s, u"VANTREL://x/y"_s, u"Vantrel://open"_s, u"vantrel:///"_s, u"vantrel:"_s, u"vantrel:/a/b"_s,
          u"vantrel:open"_s, u"vantrel://user@host:80/path/"_s})
        EXPECT_EQ(LaunchLink::parse(before + query), work()) << before.toStdString();
    EXPECT_EQ(LaunchLink::parse(u"vantrel://"_s + query + u"#fragment&profile=x"_s), work());
}

TEST(LaunchLinkParsing, AnotherSchemeIsNoProfileLink)
{
    const QString query = u"://?browserBundleIdentifier=com.google.Chrome&profileName=Work"_s;
    for (const QString &scheme : {u""_s, u"https"_s, u"vantrel2"_s, u"xvantrel"_s, u"vantrel-x"_s, u"file"_s})
        EXPECT_EQ(LaunchLink::parse(scheme + query), std::nullopt) << scheme.toStdString();
}

TEST(LaunchLinkParsing, ALinkWithoutAQueryIsNone)
{
    for (const QString &text :
         {u""_s, u"vantrel:"_s, u"vantrel://"_s, u"vantrel://?"_s, u"vantrel://host"_s, u"vantrel://host/path"_s,
          u"vantrel://#browserBundleIdentifier=com.google.Chrome&profileName=Work"_s, u"vantrel"_s, u"?"_s,
          u"browserBundleIdentifier=com.google.Chrome&profileName=Work"_s})
        EXPECT_EQ(LaunchLink::parse(text), std::nullopt) << text.toStdString();
    EXPECT_EQ(LaunchLink::parse(QUrl()), std::nullopt);
}

TEST(LaunchLinkParsing, TextThatIsNoUrlIsNoProfileLink)
{
    for (const QString &text : test::oddTexts() + test::loneSurrogates())
        EXPECT_EQ(LaunchLink::parse(text), std::nullopt);
}

TEST(LaunchLinkParsing, TheBrowserIsRequired)
{
    for (const QString &items :
         {u"profileName=Work"_s, u"profile=x&profileName=Work"_s, u"browserBundleIdentifier=&profileName=Work"_s,
          u"browserBundleIdentifier&profileName=Work"_s,
          u"browserbundleidentifier=com.google.Chrome&profileName=Work"_s,
          u"browserBundleIdentifier=&browserBundleIdentifier=com.google.Chrome&profileName=Work"_s})
        EXPECT_EQ(LaunchLink::parse(u"vantrel://?"_s + items), std::nullopt) << items.toStdString();
}

TEST(LaunchLinkParsing, ANameOrAnIdIsRequired)
{
    EXPECT_EQ(chromeLink(u"profile=x"_s), (LaunchLink{test::chrome, {}, u"x"_s, {}}));
    EXPECT_EQ(chromeLink(u"profileName=&profile=x"_s), (LaunchLink{test::chrome, {}, u"x"_s, {}}));
    EXPECT_EQ(chromeLink(u"profileName=Work"_s), work());
    EXPECT_EQ(chromeLink(u"profileName=Work&profile="_s), work());
    EXPECT_EQ(chromeLink(u"profileName=Work&profile"_s), work());
    for (const QString &items :
         {u""_s, u"profileName="_s, u"profile="_s, u"profileName&profile"_s, u"profileName=&profile="_s,
          u"ProfileName=Work"_s, u"Profile=x"_s, u"url=https://a.example"_s})
        EXPECT_EQ(chromeLink(items), std::nullopt) << items.toStdString();
}

TEST(LaunchLinkParsing, AnyBrowserAndAnyIdAreTaken)
{
    EXPECT_EQ(LaunchLink::parse(u"vantrel://?profile=nonsense&browserBundleIdentifier=org.example"_s),
              (LaunchLink{u"org.example"_s, {}, u"nonsense"_s, {}}));
}

TEST(LaunchLinkParsing, OfTwoItemsOfOneNameTheFirstCounts)
{
    EXPECT_EQ(chromeLink(u"profileName=Work&profileName=Home"_s), work());
    EXPECT_EQ(chromeLink(u"profileName=Work&profile=a&profile=b"_s)->profileID, u"a"_s);
    EXPECT_EQ(chromeLink(u"browserBundleIdentifier=x&profileName=Work"_s), work());
}

TEST(LaunchLinkParsing, AnEmptyFirstItemMakesTheNameAbsent)
{
    EXPECT_EQ(chromeLink(u"profileName=&profileName=Work"_s), std::nullopt);
    EXPECT_EQ(chromeLink(u"profileName&profileName=Work"_s), std::nullopt);
    EXPECT_EQ(chromeLink(u"profileName=&profileName=Work&profile=x"_s), (LaunchLink{test::chrome, {}, u"x"_s, {}}));
    EXPECT_EQ(chromeLink(u"profileName=Work&profile=&profile=x"_s), work());
}

TEST(LaunchLinkParsing, EmptyAndUnknownItemsAreIgnored)
{
    EXPECT_EQ(chromeLink(u"&&profileName=Work&"_s), work());
    EXPECT_EQ(chromeLink(u"=x&=&profileName=Work&other=1&names"_s), work());
}

TEST(LaunchLinkParsing, AValueGoesToTheNextAmpersand)
{
    EXPECT_EQ(chromeLink(u"profileName=a=b=c"_s)->profileName, u"a=b=c"_s);
    EXPECT_EQ(chromeLink(u"profileName=="_s)->profileName, u"="_s);
    EXPECT_EQ(chromeLink(u"profileName=a;b,c"_s)->profileName, u"a;b,c"_s);
}

TEST(LaunchLinkParsing, AValueIsDecodedOnce)
{
    const std::vector<std::pair<QString, QString>> rows{
        {u"a%20b"_s, u"a b"_s},
        {u"a b"_s, u"a b"_s},
        {u"a+b"_s, u"a+b"_s},
        {u"a%2Bb"_s, u"a+b"_s},
        {u"a%2bb"_s, u"a+b"_s},
        {u"%26"_s, u"&"_s},
        {u"%3D%23%3F"_s, u"=#?"_s},
        {u"%2525"_s, u"%25"_s},
        {u"%252525"_s, u"%2525"_s},
        {u"%2520"_s, u"%20"_s},
        {u"%2526"_s, u"%26"_s},
        {u"%253D"_s, u"%3D"_s},
        {u"%252B"_s, u"%2B"_s},
        {u"%C3%A9"_s, u"\u00e9"_s},
        {u"\u00e9"_s, u"\u00e9"_s},
        {u"%00"_s, u"\0"_s},
        {u"a%00b"_s, u"a\0b"_s},
        {u"%0A%0D%09"_s, u"\n\r\t"_s},
        {u"%F0%9F%98%80"_s, u"\U0001F600"_s},
        {u"\U0001F600"_s, u"\U0001F600"_s},
        {u"%D7%90"_s, u"\u05d0"_s},
        {u"%41%62"_s, u"Ab"_s},
        {u"%22%3C%3E%5B%5D%5E%60%7B%7C%7D"_s, u"\"<>[]^`{|}"_s},
        {u"%5C"_s, u"\\"_s},
        {u"%7F"_s, u"\x7f"_s},
        {u"%EF%BF%BF"_s, u"\uffff"_s},
        {u"x%EF%BB%BF"_s, u"x\ufeff"_s},
        {u"%E2%80%AEx"_s, u"\u202ex"_s},
        {u"/:?@!$'()*,;-._~"_s, u"/:?@!$'()*,;-._~"_s},
    };
    for (const auto &[text, value] : rows)
        EXPECT_EQ(chromeLink(u"profileName="_s + text)->profileName, value) << text.toStdString();
}

TEST(LaunchLinkParsing, APercentSignThatEncodesNothingStandsForItself)
{
    for (const QString &text : {u"%"_s, u"%z"_s, u"%zz"_s, u"100%"_s, u"%2"_s, u"50% off"_s, u"%g0"_s, u"%%"_s})
        EXPECT_EQ(chromeLink(u"profileName="_s + text)->profileName, text) << text.toStdString();
}

TEST(LaunchLinkParsing, ALeadingByteOrderMarkIsPartOfTheName)
{
    EXPECT_EQ(chromeLink(u"profileName=%EF%BB%BFWork"_s)->profileName, u"\ufeffWork"_s);
}

TEST(LaunchLinkParsing, BytesThatAreNoUtf8BecomeReplacementCharacters)
{
    for (const QString &text : {u"%FF"_s, u"a%C3"_s, u"%ED%A0%80"_s, u"%C0%80"_s, u"%F8%88%80%80%80"_s})
        EXPECT_TRUE(chromeLink(u"profileName="_s + text)->profileName.contains(QChar::ReplacementCharacter));
}

TEST(LaunchLinkParsing, ItemNamesAreDecodedToo)
{
    EXPECT_EQ(chromeLink(u"profile%4Eame=Work"_s), work());
}

TEST(LaunchLinkParsing, WebLinksComeInTheirOrder)
{
    EXPECT_EQ(webLinks(u"url=https://b.example/&url=file:///tmp/a&url=http://c.example/&url=https://b.example/"_s),
              QList<QUrl>({QUrl(u"https://b.example/"_s), QUrl(u"file:///tmp/a"_s), QUrl(u"http://c.example/"_s),
                           QUrl(u"https://b.example/"_s)}));
}

TEST(LaunchLinkParsing, WebLinksMayStandAnywhere)
{
    EXPECT_EQ(
        LaunchLink::parse(
            u"vantrel://?url=https://a&browserBundleIdentifier=com.google.Chrome&url=https://b&profileName=Work"_s),
        work({QUrl(u"https://a"_s), QUrl(u"https://b"_s)}));
}

TEST(LaunchLinkParsing, LinksThatNoBrowserShouldGetAreDropped)
{
    EXPECT_EQ(webLinks(u"url=mailto:a@b.example&url=javascript:alert(1)&url=https://a.example/&url=vantrel://?x=y"
                       "&url=a.example&url=//a.example&url=data:,x&url=&url&URL=https://b.example"_s),
              QList<QUrl>({QUrl(u"https://a.example/"_s)}));
}

TEST(LaunchLinkParsing, LinksThatDoNotParseAreDropped)
{
    EXPECT_EQ(webLinks(u"url=https://[&url=https://a:port/&url=http://a%2520b/&url=https://ok.example"_s),
              QList<QUrl>({QUrl(u"https://ok.example"_s)}));
}

TEST(LaunchLinkParsing, ASchemeInCapitalsIsKept)
{
    EXPECT_EQ(webLinks(u"url=HTTPS://A.example/B&url=File:///x"_s),
              QList<QUrl>({QUrl(u"https://a.example/B"_s), QUrl(u"file:///x"_s)}));
}

TEST(LaunchLinkParsing, AWebLinkIsDecodedOnce)
{
    EXPECT_EQ(webLinks(u"url=https://a.example/?b%3Dc%26d%23e"_s).first(), QUrl(u"https://a.example/?b=c&d#e"_s));
    EXPECT_EQ(webLinks(u"url=https://a.example/b%2520c"_s).first().toEncoded(), "https://a.example/b%20c");
    EXPECT_EQ(webLinks(u"url=https://a.example/%252525"_s).first().toEncoded(), "https://a.example/%2525");
    EXPECT_EQ(webLinks(u"url=https://a.example/?x=1"_s).first(), QUrl(u"https://a.example/?x=1"_s));
}

TEST(LaunchLinkParsing, ALinkOfOneMebibyteIsRead)
{
    const QString name(1024 * 1024, u'\u00e9');
    const LaunchLink link{test::chrome, name, std::nullopt, {}};
    ASSERT_GT(link.text().size(), 6 * 1024 * 1024);
    EXPECT_TRUE(LaunchLink::parse(link.text()) == link);
}

TEST(LaunchLinkParsing, AHundredThousandWebLinksAreRead)
{
    QString items = u"profileName=Work"_s;
    for (int number = 0; number < 100000; ++number)
        items += u"&url=https://a/"_s;
    EXPECT_EQ(chromeLink(items)->urls.size(), 100000);
}

} // namespace
} // namespace vantrel
