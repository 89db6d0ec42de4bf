#include "VantrelKit/ChromiumLocalState.h"

#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <QJsonArray>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Info = ChromiumLocalState::Info;
using Cache = QHash<QString, Info>;

std::optional<Cache> cacheIn(const QByteArray &content)
{
    const test::TemporaryFolder folder;
    const auto state = ChromiumLocalState::read(folder.write(u"Local State"_s, content));
    return state ? std::optional(state->infoCache) : std::nullopt;
}

/// The file with this text as the info cache.
QByteArray withCache(const QByteArray &cache)
{
    return R"({"browser": {"x": 1}, "profile": {"last_used": "Default", "info_cache": )" + cache + "}}";
}

const Cache work{{u"Profile 1"_s, {u"Work"_s, std::nullopt}}};

TEST(ChromiumLocalState, EachFolderHasItsNameAndIcon)
{
    const QByteArray cache = R"({"Default": {"name": "Home", "avatar_icon": "chrome://theme/IDR_PROFILE_AVATAR_26"},
                                 "Profile 1": {"name": "Work", "is_using_default_name": false, "more": {"name": "x"}},
                                 "Profile 2": {"avatar_icon": "Avatars/me.png"},
                                 "Profile 3": {}})";
    const Cache expected{
        {u"Default"_s, {u"Home"_s, u"chrome://theme/IDR_PROFILE_AVATAR_26"_s}},
        {u"Profile 1"_s, {u"Work"_s, std::nullopt}},
        {u"Profile 2"_s, {std::nullopt, u"Avatars/me.png"_s}},
        {u"Profile 3"_s, {std::nullopt, std::nullopt}},
    };
    EXPECT_EQ(cacheIn(withCache(cache)), expected);
}

TEST(ChromiumLocalState, NullMembersAreMissingOnes)
{
    EXPECT_EQ(cacheIn(withCache(R"({"Profile 1": {"name": "Work", "avatar_icon": null}})")), work);
    EXPECT_EQ(cacheIn(withCache(R"({"Profile 1": {"name": null}})")), Cache({{u"Profile 1"_s, Info()}}));
}

TEST(ChromiumLocalState, WithoutACacheThereIsNothingInIt)
{
    for (const QByteArray content :
         {R"({})", R"({"other": 1})", R"({"profile": {}})", R"({"profile": null})",
          R"({"profile": {"info_cache": {}}})", R"({"profile": {"info_cache": null}})",
          R"({"Profile": {"info_cache": 5}})", R"({"info_cache": {"Default": {"name": "x"}}})",
          R"({"profile": {"Info_Cache": 5}})"})
        EXPECT_EQ(cacheIn(content), Cache()) << content.toStdString();
}

TEST(ChromiumLocalState, AWrongShapeAtAnyLevelMakesTheFileUnreadable)
{
    for (const QByteArray value : {"1", "1.5", "true", "\"x\"", "[]", "[{}]"}) {
        EXPECT_EQ(cacheIn(value), std::nullopt) << value.toStdString();
        EXPECT_EQ(cacheIn("{\"profile\": " + value + "}"), std::nullopt) << value.toStdString();
        EXPECT_EQ(cacheIn(withCache(value)), std::nullopt) << value.toStdString();
        EXPECT_EQ(cacheIn(withCache("{\"Default\": " + value + "}")), std::nullopt) << value.toStdString();
        if (value == "\"x\"")
            continue;
        EXPECT_EQ(cacheIn(withCache("{\"Default\": {\"name\": " + value + "}}")), std::nullopt) << value.toStdString();
        EXPECT_EQ(cacheIn(withCache("{\"Default\": {\"avatar_icon\": " + value + "}}")), std::nullopt)
            << value.toStdString();
    }
    EXPECT_EQ(cacheIn("null"), std::nullopt);
    EXPECT_EQ(cacheIn(withCache(R"({"Default": null})")), std::nullopt);
}

TEST(ChromiumLocalState, OneWrongRecordMakesTheFileUnreadable)
{
    EXPECT_EQ(cacheIn(withCache(R"({"Profile 1": {"name": "Work"}, "Profile 2": 5})")), std::nullopt);
    EXPECT_EQ(cacheIn(withCache(R"({"Profile 1": {"name": "Work"}, "Profile 2": {"name": 5}})")), std::nullopt);
}

TEST(ChromiumLocalState, WhatIsNoJsonIsNone)
{
    for (const QByteArray content :
         {"", " ", "\n", "nonsense", "{", "}", "{]", "{'profile': {}}", "{\"profile\": {},}", "{\"profile\" {}}", "nul",
          "{}{}", "{} x", "// comment\n{}", "{\"a\": \"\x01\"}", R"({"a": "\x"})", "<html>"})
        EXPECT_EQ(cacheIn(content), std::nullopt) << content.toStdString();
    EXPECT_EQ(cacheIn(QByteArray("{}\0", 3)), std::nullopt);
    EXPECT_EQ(cacheIn(QByteArray(4096, '\0')), std::nullopt);
}

TEST(ChromiumLocalState, BlanksAroundTheJsonDoNotMatter)
{
    EXPECT_EQ(cacheIn(" \r\n\t" + withCache(R"({"Profile 1": {"name": "Work"}})") + "\n\n"), work);
}

TEST(ChromiumLocalState, WhatIsNoUtf8IsNone)
{
    EXPECT_EQ(cacheIn(withCache("{\"Profile 1\": {\"name\": \"W\xF6rk\"}}")), std::nullopt);
    EXPECT_EQ(cacheIn(withCache("{\"Profile 1\": {\"name\": \"\xED\xA0\x80\"}}")), std::nullopt);
    EXPECT_EQ(cacheIn("{\"other\": \"\xFF\"}"), std::nullopt);
    const QString text = QString::fromUtf8(withCache(R"({"Profile 1": {"name": "Work"}})"));
    EXPECT_EQ(cacheIn(QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2)), std::nullopt);
}

TEST(ChromiumLocalState, AFileCutOffAnywhereIsNone)
{
    const QByteArray whole = withCache("{\"Profile 1\": {\"name\": \"W\xC3\xB6rk\", \"avatar_icon\": \"a/b.png\"}}");
    ASSERT_TRUE(cacheIn(whole));
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_EQ(cacheIn(whole.first(length)), std::nullopt) << length;
}

TEST(ChromiumLocalState, AnyNameAndFolderIsReadAsItIs)
{
    QJsonObject cache;
    Cache expected;
    for (const QString &text : test::oddTexts()) {
        cache.insert(text, QJsonObject{{u"name"_s, text}, {u"avatar_icon"_s, text}});
        expected.insert(text, {text, text});
    }
    EXPECT_EQ(cacheIn(withCache(QJsonDocument(cache).toJson())), expected);
}

TEST(ChromiumLocalState, EmptyTextsAreReadAsEmpty)
{
    EXPECT_EQ(cacheIn(withCache(R"({"": {"name": "", "avatar_icon": ""}})")), Cache({{u""_s, {u""_s, u""_s}}}));
}

TEST(ChromiumLocalState, NumbersBeyond64BitsElsewhereDoNotMatter)
{
    const QByteArray cache = R"({"Profile 1": {"name": "Work"}}, "counter": 123456789012345678901234567890)";
    EXPECT_EQ(cacheIn(withCache(cache)), work);
}

TEST(ChromiumLocalState, EightMebibytesAreRead)
{
    QJsonObject cache;
    Cache expected;
    for (int number = 0; number < 4000; ++number) {
        const QString folder = u"Profile %1"_s.arg(number);
        const QString name = QString(1000, u'\u00e9') + QString::number(number);
        cache.insert(folder, QJsonObject{{u"name"_s, name}, {u"gaia_id"_s, QString(100, u'x')}});
        expected.insert(folder, {name, std::nullopt});
    }
    const QByteArray content = withCache(QJsonDocument(cache).toJson());
    ASSERT_GT(content.size(), 8 * 1024 * 1024);
    EXPECT_TRUE(cacheIn(content) == expected);
}

TEST(ChromiumLocalState, AHundredThousandBracketsAreNoneAndNoCrash)
{
    const QByteArray brackets = QByteArray(100000, '[') + QByteArray(100000, ']');
    EXPECT_EQ(cacheIn(brackets), std::nullopt);
    EXPECT_EQ(cacheIn(QByteArray(100000, '[')), std::nullopt);
    EXPECT_EQ(cacheIn(QByteArray("{\"a\":").repeated(100000)), std::nullopt);
    EXPECT_EQ(cacheIn(withCache(brackets)), std::nullopt);
}

TEST(ChromiumLocalState, WhatIsMissingOrNoFileIsNone)
{
    const test::TemporaryFolder folder;
    EXPECT_EQ(ChromiumLocalState::read(folder.path(u"missing"_s)), std::nullopt);
    EXPECT_EQ(ChromiumLocalState::read(folder.makeFolder(u"Local State"_s)), std::nullopt);
    EXPECT_EQ(ChromiumLocalState::read(folder.link(u"broken"_s, folder.path(u"nowhere"_s))), std::nullopt);
}

TEST(ChromiumLocalState, APipeInItsPlaceDoesNotBlock)
{
    const test::TemporaryFolder folder;
    const QString pipe = folder.makePipe(u"Local State"_s);
    EXPECT_EQ(
        test::answerOfUnprivilegedProcess([&pipe] { return ChromiumLocalState::read(pipe) ? u"read"_s : u"none"_s; }),
        u"none"_s);
}

} // namespace
} // namespace vantrel
