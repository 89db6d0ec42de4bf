#include "VantrelKit/ChromiumPreferences.h"

#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Tests/VantrelKit/UnprivilegedProcess.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

const QString unreadable = u"The file can't be read."_s;
const QString nameless = u"The file has no name."_s;

/// The name, or one of the two texts above.
QString nameIn(const QByteArray &content)
{
    const test::TemporaryFolder folder;
    const auto preferences = ChromiumPreferences::read(folder.write(u"Preferences"_s, content));
    return preferences ? preferences->name.value_or(nameless) : unreadable;
}

TEST(ChromiumPreferences, TheNameIsAMemberOfTheProfile)
{
    EXPECT_EQ(nameIn(R"({"a": [1], "profile": {"avatar_index": 26, "name": "Work"}, "name": "x"})"), u"Work"_s);
    EXPECT_EQ(nameIn(R"({"profile": {"name": ""}})"), u""_s);
}

TEST(ChromiumPreferences, AnyNameIsReadAsItIs)
{
    for (const QString &text : test::oddTexts()) {
        const QJsonObject json{{u"profile"_s, QJsonObject{{u"name"_s, text}}}};
        EXPECT_EQ(nameIn(QJsonDocument(json).toJson()), text);
    }
}

TEST(ChromiumPreferences, TheNameMayBeMissingOrNull)
{
    for (const QByteArray content :
         {R"({})", R"({"name": "x"})", R"({"profile": {}})", R"({"profile": null})", R"({"profile": {"name": null}})",
          R"({"Profile": {"name": "x"}})", R"({"profile": {"Name": "x"}})"})
        EXPECT_EQ(nameIn(content), nameless) << content.toStdString();
}

TEST(ChromiumPreferences, AWrongShapeAtAnyLevelMakesTheFileUnreadable)
{
    for (const QByteArray value : {"1", "true", "[]", "[\"x\"]"}) {
        EXPECT_EQ(nameIn(value), unreadable) << value.toStdString();
        EXPECT_EQ(nameIn("{\"profile\": " + value + "}"), unreadable) << value.toStdString();
        EXPECT_EQ(nameIn("{\"profile\": {\"name\": " + value + "}}"), unreadable) << value.toStdString();
    }
    EXPECT_EQ(nameIn("\"x\""), unreadable);
    EXPECT_EQ(nameIn("null"), unreadable);
    EXPECT_EQ(nameIn(R"({"profile": "x"})"), unreadable);
    EXPECT_EQ(nameIn(R"({"profile": {"name": {}}})"), unreadable);
}

TEST(ChromiumPreferences, WhatIsNoJsonIsNone)
{
    for (const QByteArray content : {"", "nonsense", "{", "{\"profile\": {\"name\": \"\xFF\"}}", "{\"profile\": {},}"})
        EXPECT_EQ(nameIn(content), unreadable) << content.toStdString();
    EXPECT_EQ(nameIn(QByteArray(100000, '[')), unreadable);
}

TEST(ChromiumPreferences, AFileCutOffAnywhereIsNone)
{
    const QByteArray whole = R"({"profile": {"name": "Work"}})";
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_EQ(nameIn(whole.first(length)), unreadable) << length;
}

TEST(ChromiumPreferences, NumbersBeyond64BitsElsewhereDoNotMatter)
{
    EXPECT_EQ(nameIn(R"({"x": 123456789012345678901234567890, "profile": {"name": "Work"}})"), u"Work"_s);
}

TEST(ChromiumPreferences, WhatIsMissingOrNoFileIsNone)
{
    const test::TemporaryFolder folder;
    EXPECT_EQ(ChromiumPreferences::read(folder.path(u"missing"_s)), std::nullopt);
    EXPECT_EQ(ChromiumPreferences::read(folder.makeFolder(u"Preferences"_s)), std::nullopt);
}

TEST(ChromiumPreferences, APipeInItsPlaceDoesNotBlock)
{
    const test::TemporaryFolder folder;
    const QString pipe = folder.makePipe(u"Preferences"_s);
    EXPECT_EQ(
        test::answerOfUnprivilegedProcess([&pipe] { return ChromiumPreferences::read(pipe) ? u"read"_s : u"none"_s; }),
        u"none"_s);
}

} // namespace
} // namespace vantrel
