#include "VantrelKit/LaunchLink.h"

#include "Tests/VantrelKit/Samples.h"
#include "VantrelKit/Profile.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// The value of an item as it is written.
QString encoded(const QString &value)
{
    const LaunchLink link{test::chrome, value, std::nullopt, {}};
    const QString before = u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName="_s;
    EXPECT_TRUE(link.text().startsWith(before));
    return link.text().mid(before.size());
}

TEST(LaunchLink, AProfilesLinkHasItsBrowserNameAndIdAndNoWebLinks)
{
    const Profile profile{test::chrome, u"Work"_s, ProfileTarget::chromium(u"Profile 1"_s), QByteArray("picture")};
    EXPECT_EQ(LaunchLink::forProfile(profile),
              (LaunchLink{test::chrome, u"Work"_s, u"com.google.Chrome/chromium:Profile 1"_s, {}}));
    EXPECT_EQ(LaunchLink::forProfile(Profile::privateWindow(test::zen)),
              (LaunchLink{test::zen, {}, u"app.zen-browser.zen/private"_s, {}}));
}

TEST(LaunchLink, TheItemsStandInTheirOrder)
{
    const LaunchLink link{test::chrome,
                          u"Work"_s,
                          u"com.google.Chrome/chromium:Profile 1"_s,
                          {QUrl(u"https://a.example/?b=c&d"_s), QUrl(u"file:///tmp/x"_s)}};
    EXPECT_EQ(link.text(), u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=Work"
                           "&profile=com.google.Chrome/chromium:Profile%201"
                           "&url=https://a.example/?b%3Dc%26d&url=file:///tmp/x"_s);
}

TEST(LaunchLink, TheIdIsLeftOutWhenThereIsNoneAndTheNameNever)
{
    EXPECT_EQ((LaunchLink{test::chrome, u"Work"_s, std::nullopt, {}}.text()),
              u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=Work"_s);
    EXPECT_EQ((LaunchLink{test::chrome, {}, u"x"_s, {}}.text()),
              u"vantrel://?browserBundleIdentifier=com.google.Chrome&profileName=&profile=x"_s);
}

TEST(LaunchLink, EveryItemIsEncoded)
{
    const LaunchLink link{u"a b"_s, u"c&d"_s, u"e=f"_s, {QUrl(u"https://g.example/#h+i"_s)}};
    EXPECT_EQ(link.text(), u"vantrel://?browserBundleIdentifier=a%20b&profileName=c%26d&profile=e%3Df"
                           "&url=https://g.example/%23h%2Bi"_s);
}

TEST(LaunchLink, LettersDigitsAndTheCharactersOfQueriesStay)
{
    const QString unencoded = u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._~!$'()*,/:;?@"_s;
    EXPECT_EQ(encoded(unencoded), unencoded);
}

TEST(LaunchLink, AllOtherCharactersOfAsciiAreEncoded)
{
    const QString unencoded = u"-._~!$'()*,/:;?@"_s;
    for (ushort code = 0; code < 128; ++code) {
        const QChar character(code);
        const bool stays = character.isLetterOrNumber() || unencoded.contains(character);
        const QString expected =
            stays ? QString(character) : u"%%1"_s.arg(QString::number(code, 16).toUpper(), 2, u'0');
        EXPECT_EQ(encoded(QString(character)), expected) << code;
    }
}

TEST(LaunchLink, TextOfOtherScriptsIsEncodedAsUtf8)
{
    const std::vector<std::pair<QString, QString>> rows{
        {u"\u00e9"_s, u"%C3%A9"_s},
        {u"e\u0301"_s, u"e%CC%81"_s},
        {u"\u05d0"_s, u"%D7%90"_s},
        {u"\u65e5"_s, u"%E6%97%A5"_s},
        {u"\U0001F600"_s, u"%F0%9F%98%80"_s},
        {u"\u2013"_s, u"%E2%80%93"_s},
        {u"\ufeff"_s, u"%EF%BB%BF"_s},
        {u"\uffff"_s, u"%EF%BF%BF"_s},
        {u"%"_s, u"%25"_s},
        {u"%20"_s, u"%2520"_s},
        {u"100% a+b=c & #1"_s, u"100%25%20a%2Bb%3Dc%20%26%20%231"_s},
        {u"line\nbreak"_s, u"line%0Abreak"_s},
        {u"nul\0"_s, u"nul%00"_s},
    };
    for (const auto &[text, expected] : rows)
        EXPECT_EQ(encoded(text), expected);
}

TEST(LaunchLink, TheTextOfAnyNameIsAscii)
{
    for (const QString &text : test::oddTexts()) {
        const QString written = LaunchLink{text, text, text, {}}.text();
        EXPECT_TRUE(std::ranges::all_of(written, [](QChar character) {
            return character > u' ' && character < QChar(0x7f);
        })) << written.toStdString();
    }
}

TEST(LaunchLink, ANameThatCanNotBeEncodedIsWrittenAsItIs)
{
    for (const QString &text : test::loneSurrogates())
        EXPECT_EQ(encoded(text), text);
}

TEST(LaunchLink, AWebLinkIsWrittenAsBrowsersTakeIt)
{
    const LaunchLink link{test::chrome, u"W"_s, std::nullopt, {QUrl(u"https://a.example/b c?d=\u00e9"_s)}};
    EXPECT_TRUE(link.text().endsWith(u"&url=https://a.example/b%2520c?d%3D%25C3%25A9"_s)) << link.text().toStdString();
}

TEST(LaunchLink, EveryFieldCountsForEquality)
{
    const LaunchLink link{test::chrome, u"Work"_s, u"id"_s, {QUrl(u"https://a"_s)}};
    EXPECT_EQ(link, LaunchLink(link));
    EXPECT_NE(link, (LaunchLink{test::brave, u"Work"_s, u"id"_s, {QUrl(u"https://a"_s)}}));
    EXPECT_NE(link, (LaunchLink{test::chrome, u"Home"_s, u"id"_s, {QUrl(u"https://a"_s)}}));
    EXPECT_NE(link, (LaunchLink{test::chrome, u"Work"_s, std::nullopt, {QUrl(u"https://a"_s)}}));
    EXPECT_NE(link, (LaunchLink{test::chrome, u"Work"_s, u"id"_s, {}}));
}

} // namespace
} // namespace vantrel
