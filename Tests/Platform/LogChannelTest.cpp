#include "Platform/LogChannel.h"

#include "Tests/Fakes/FakeLog.h"
#include "Tests/VantrelKit/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {

void PrintTo(const LogPart &part, std::ostream *stream)
{
    *stream << part.text.toStdString() << (part.isPrivate ? " (private)" : "");
}

void PrintTo(const LogSections &sections, std::ostream *stream)
{
    *stream << sections.before.toStdString() << '|' << sections.privateText.value_or(u"none"_s).toStdString() << '|'
            << sections.after.toStdString();
}

namespace {

QString text(QLatin1StringView format, const QList<LogValue> &values, bool showsPrivateParts = false)
{
    return logText(logMessage(format, values), showsPrivateParts);
}

TEST(LogMessage, ValuesStandInTheirPlacesInTheirOrder)
{
    EXPECT_EQ(text("%{public}s: moved %{public}s to %ld; changed: %{bool}d"_L1,
                   {u"com.google.Chrome"_s, u"0,3"_s, qint64{-7}, false}),
              u"com.google.Chrome: moved 0,3 to -7; changed: false"_s);
    EXPECT_EQ(text("%{bool}d"_L1, {true}), u"true"_s);
    EXPECT_EQ(text("%{public}s: %d"_L1, {u"com.apple.Safari"_s, qint64{-1743}}), u"com.apple.Safari: -1743"_s);
    EXPECT_EQ(text("nothing"_L1, {}), u"nothing"_s);
    EXPECT_EQ(text("100 %"_L1, {}), u"100 %"_s);
}

TEST(LogMessage, PrivateValuesAreLeftOutUnlessTheyAreToBeShown)
{
    const QList<LogValue> values{u"secret"_s, u"known"_s};
    EXPECT_EQ(text("%{private}s and %{public}s"_L1, values), u"<private> and known"_s);
    EXPECT_EQ(text("%{private}s and %{public}s"_L1, values, true), u"secret and known"_s);
}

TEST(LogMessage, PlaceholdersInValuesAreText)
{
    EXPECT_EQ(text("%{public}s, %ld"_L1, {u"%ld %{private}s %1"_s, qint64{1}}), u"%ld %{private}s %1, 1"_s);
}

TEST(LogMessage, AValueCanNotEndTheLine)
{
    const QString message = text("%{public}s"_L1, {u"a\nb\r\x1b\u2028c"_s});
    EXPECT_EQ(message, u"a\\nb\\r\\x1b\\u2028c"_s);
}

TEST(LogMessage, PrivateValuesArePartsOfTheirOwn)
{
    EXPECT_EQ(logMessage("%{public}s: %{private}s, %ld"_L1, {u"a"_s, u"b"_s, qint64{1}}),
              LogMessage({{u"a: "_s}, {u"b"_s, true}, {u", 1"_s}}));
    EXPECT_EQ(logMessage("one"_L1, {}), LogMessage({{u"one"_s}}));
    EXPECT_EQ(logMessage("%{private}s"_L1, {u""_s}), LogMessage({{u""_s, true}}));
}

TEST(LogSections, NothingPrivateIsInAPublicSection)
{
    EXPECT_EQ(logSections({}), LogSections());
    EXPECT_EQ(logSections({{u"all"_s}}), LogSections({.before = u"all"_s}));
    EXPECT_EQ(logSections({{u"a"_s}, {u"b"_s, true}, {u"c"_s}}), LogSections({u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(logSections({{u"a"_s, true}, {u"b"_s}, {u"c"_s, true}, {u"d"_s}}),
              LogSections({.privateText = u"abc"_s, .after = u"d"_s}));
    EXPECT_EQ(logSections({{u"a"_s}, {u"b"_s, true}, {u"c"_s, true}}),
              LogSections({.before = u"a"_s, .privateText = u"bc"_s}));
}

TEST(LogSections, AnEmptyPrivateValueIsOneToo)
{
    EXPECT_EQ(logSections({{u"a"_s}, {u""_s, true}, {u"c"_s}}), LogSections({u"a"_s, u""_s, u"c"_s}));
}

TEST(LogChannel, WritesToItsCategoryAtTheLevelAsked)
{
    test::FakeLog log;
    const LogChannel channel(log, u"Open"_s);
    channel.information("none %ld"_L1, {qint64{0}});
    channel.notice("one"_L1);
    channel.error("two %{private}s"_L1, {u"link"_s});
    EXPECT_EQ(log.takeLines(),
              QStringList({u"[Open] information: none 0"_s, u"[Open] one"_s, u"[Open] error: two <private>"_s}));
}

} // namespace
} // namespace vantrel
