#include "Vantrel/Actions/SearchTerms.h"

#include "Tests/VantrelKit/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QString described(const QStringList &terms)
{
    const SearchTerms parsed = SearchTerms::parse(terms);
    return parsed.words.join(u'|') + u" + "_s + QUrl::toStringList(parsed.links).join(u'|');
}

TEST(SearchTerms, AreFoldedWordsHoweverTheyAreHandedOver)
{
    EXPECT_EQ(described({u"Chrome Büro"_s}), u"chrome|buro + "_s);
    EXPECT_EQ(described({u"Chrome"_s, u"Büro"_s}), u"chrome|buro + "_s);
    EXPECT_EQ(described({u" \tChrome \u00a0Büro\n"_s, u" "_s}), u"chrome|buro + "_s);
}

TEST(SearchTerms, AreEmptyWhenNothingWasTyped)
{
    for (const QStringList &terms : {QStringList(), QStringList(u""_s), QStringList({u" "_s, u"\t"_s, u"\u0301"_s})})
        EXPECT_TRUE(SearchTerms::parse(terms).isEmpty());
}

TEST(SearchTerms, ALinkIsOneWhereverItStands)
{
    EXPECT_EQ(described({u"https://example.org/a?b=C#d"_s}), u" + https://example.org/a?b=C#d"_s);
    EXPECT_EQ(described({u"work https://example.org"_s}), u"work + https://example.org"_s);
    EXPECT_EQ(described({u"HTTPS://Example.org"_s, u"work"_s}), u"work + https://example.org"_s);
    EXPECT_EQ(described({u"work http://a.example file:///b"_s}), u"work + http://a.example|file:///b"_s);
}

TEST(SearchTerms, WhatNoBrowserMayBeGivenIsAWord)
{
    for (const QString &text : {u"example.org"_s, u"https:"_s, u"https://"_s, u"http"_s, u"mailto:ann@example.org"_s,
                                u"javascript:alert(1)"_s, u"file:"_s, u"file://host/path"_s, u"vantrel://?a=b"_s})
        EXPECT_EQ(described({text}), QString(text + u" + "_s)) << text.toStdString();
}

} // namespace
} // namespace vantrel
