#include "LauncherStub/LinkWithAddresses.h"

#include "Tests/VantrelKit/Samples.h"
#include "VantrelKit/LaunchLink.h"
#include "VantrelKit/WebLinks.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using launcher_stub::linkWithAddresses;

const LaunchLink profileLink{test::chrome, u"Work & Play"_s, u"com.google.Chrome/chromium:Profile 1"_s, {}};

QString joined(const QStringList &addresses)
{
    std::vector<std::string> texts;
    for (const QString &address : addresses)
        texts.push_back(address.toStdString());
    return QString::fromStdString(linkWithAddresses(profileLink.text().toStdString(), texts));
}

TEST(LinkWithAddresses, WithoutAddressesTheLinkStaysAsItIs)
{
    EXPECT_EQ(joined({}), profileLink.text());
    EXPECT_EQ(linkWithAddresses("", {}), "");
}

TEST(LinkWithAddresses, AddressesFollowInTheirOrder)
{
    EXPECT_EQ(joined({u"https://a.example/?b=c&d#e"_s, u"file:///tmp/x%20y.html"_s}),
              profileLink.text() + u"&url=https://a.example/?b%3Dc%26d%23e&url=file:///tmp/x%2520y.html"_s);
}

TEST(LinkWithAddresses, OnlyWhatBrowsersMayBeGivenIsAdded)
{
    EXPECT_EQ(joined({u"mailto:a@example.com"_s, u"javascript:alert(1)"_s, u"vantrel://?x"_s, u""_s, u":"_s, u"http"_s,
                      u"httpx://a/"_s, u"ftp://a/"_s, u" https://a/"_s}),
              profileLink.text());
    EXPECT_EQ(joined({u"HTTPS://a.example/"_s, u"File:///x"_s}),
              profileLink.text() + u"&url=HTTPS://a.example/&url=File:///x"_s);
}

TEST(LinkWithAddresses, TheResultIsTheLinkThatTheAppWritesAndReads)
{
    QStringList addresses{u"https://example.com/?q=%26%3D%2B%23&x=a+b"_s, u"http://user@host:8080/p;a=1,2/(x)*'$!"_s,
                          u"file:///Users/m%C3%BCller/a%20b.webloc"_s, u"https://xn--mnchen-3ya.example/~u?[]"_s};
    for (const QString &text : test::oddTexts())
        addresses.append(
            linkText(QUrl(u"https://example.com/"_s + QString::fromLatin1(QUrl::toPercentEncoding(text)))));
    LaunchLink expected = profileLink;
    expected.urls = QUrl::fromStringList(addresses);
    for (QString &address : addresses)
        address = linkText(QUrl(address));
    EXPECT_EQ(joined(addresses), expected.text());
    EXPECT_EQ(LaunchLink::parse(joined(addresses)), expected);
}

TEST(LinkWithAddresses, EveryByteThatIsNotPartOfAQueryIsEncoded)
{
    std::string address = "https://a/";
    for (int byte = 1; byte < 256; ++byte)
        address += static_cast<char>(byte);
    const std::string link = linkWithAddresses("", {address});
    const QByteArray unencoded = "!$'()*,/:;?@";
    EXPECT_EQ(QByteArray::fromStdString(link),
              "&url=" + QByteArray::fromStdString(address).toPercentEncoding(unencoded));
}

} // namespace
} // namespace vantrel
