#include "Platform/LogChannel.h"

#include "Tests/Fakes/FakeLog.h"
#include "Tests/VantrelKit/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

TEST(LogMessage, ValuesStandInTheirPlacesInTheirOrder)
{
    EXPECT_EQ(logMessage("%{public}s: moved %{public}s to %ld; changed: %{bool}d"_L1,
                         {u"com.google.Chrome"_s, u"0,3"_s, qint64{-7}, false}, false),
              u"com.google.Chrome: moved 0,3 to -7; changed: false"_s);
    EXPECT_EQ(logMessage("%{bool}d"_L1, {true}, false), u"true"_s);
    EXPECT_EQ(logMessage("%{public}s: %d"_L1, {u"com.apple.Safari"_s, qint64{-1743}}, false),
              u"com.apple.Safari: -1743"_s);
    EXPECT_EQ(logMessage("nothing"_L1, {}, false), u"nothing"_s);
    EXPECT_EQ(logMessage("100 %"_L1, {}, false), u"100 %"_s);
}

TEST(LogMessage, PrivateValuesAreLeftOutUnlessTheyAreToBeShown)
{
    const QList<LogValue> values{u"secret"_s, u"known"_s};
    EXPECT_EQ(logMessage("%{private}s and %{public}s"_L1, values, false), u"<private> and known"_s);
    EXPECT_EQ(logMessage("%{private}s and %{public}s"_L1, values, true), u"secret and known"_s);
}

TEST(LogMessage, PlaceholdersInValuesAreText)
{
    EXPECT_EQ(logMessage("%{public}s, %ld"_L1, {u"%ld %{private}s %1"_s, qint64{1}}, false),
              u"%ld %{private}s %1, 1"_s);
}

TEST(LogMessage, AValueCanNotEndTheLine)
{
    const QString message = logMessage("%{public}s"_L1, {u"a\nb\r\x1b\u2028c"_s}, false);
    EXPECT_EQ(message, u"a\\nb\\r\\x1b\\u2028c"_s);
}

TEST(LogChannel, WritesToItsCategoryAtTheLevelAsked)
{
    test::FakeLog log;
    const LogChannel channel(log, u"Open"_s);
    channel.information("none %ld"_L1, {qint64{0}});
    channel.notice("one"_L1);
    channel.error("two %{private}s"_L1, {u"link"_s});
    log.setShowsPrivateValues(true);
    channel.error("three %{private}s"_L1, {u"link"_s});
    EXPECT_EQ(log.takeLines(), QStringList({u"[Open] information: none 0"_s, u"[Open] one"_s,
                                            u"[Open] error: two <private>"_s, u"[Open] error: three link"_s}));
}

} // namespace
} // namespace vantrel
