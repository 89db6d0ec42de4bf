#include "Platform/ActivationSource.h"

#include "Tests/VantrelKit/Printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

QString startupID(ActivationSource &source)
{
    return source.apply({}).value(u"DESKTOP_STARTUP_ID"_s);
}

TEST(ActivationSource, WithoutAnActNothingIsAdded)
{
    ActivationSource source;
    QProcessEnvironment variables;
    variables.insert(u"HOME"_s, u"/home"_s);
    EXPECT_EQ(source.apply(variables).toStringList(), QStringList(u"HOME=/home"_s));
}

TEST(ActivationSource, ATokenIsGoodForOneStart)
{
    ActivationSource source;
    source.noteToken(u"token"_s);
    EXPECT_EQ(source.apply({}).value(u"XDG_ACTIVATION_TOKEN"_s), u"token"_s);
    EXPECT_TRUE(source.apply({}).isEmpty());
}

TEST(ActivationSource, AnIdentifierIsGoodForOneStart)
{
    ActivationSource source;
    source.noteStartupID(u"launcher_TIME5"_s);
    EXPECT_EQ(startupID(source), u"launcher_TIME5"_s);
    EXPECT_TRUE(source.apply({}).isEmpty());
}

TEST(ActivationSource, TheTimeOfTheLastActMakesAnIdentifierForEachStart)
{
    ActivationSource source;
    source.noteTime(4'000'000'000);
    source.noteTime(4'100'000'000);
    const QString first = startupID(source);
    const QString second = startupID(source);
    EXPECT_TRUE(first.endsWith("_TIME4100000000"_L1)) << first.toStdString();
    EXPECT_TRUE(second.endsWith("_TIME4100000000"_L1)) << second.toStdString();
    EXPECT_NE(first, second);
}

TEST(ActivationSource, AnIdentifierThatWasHandedOverComesBeforeOneOfOurOwn)
{
    ActivationSource source;
    source.noteTime(7);
    source.noteStartupID(u"launcher_TIME5"_s);
    EXPECT_EQ(startupID(source), u"launcher_TIME5"_s);
    EXPECT_TRUE(startupID(source).endsWith("_TIME7"_L1));
}

} // namespace
} // namespace vantrel
