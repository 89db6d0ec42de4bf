#include "Platform/Linux/Search/SearchTypes.h"
#include "Tests/Platform/Linux/Search/SearchFixture.h"

#include <QDBusPendingCall>
#include <QTest>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

using Fit = ProfileAnswers::Found::Fit;

const QString interface = u"org.kde.krunner1"_s;

class RunnerInterfaceTest : public test::SearchFixture {
protected:
    RunnerInterfaceTest()
    {
        answers_.find(u"a/1"_s, u"Chrome – Wörk"_s, Fit::wholeName);
        answers_.find(u"b/2"_s, u"Brave – Workshop"_s, Fit::beginOfName);
        answers_.find(u"c/3"_s, u"Zen – Homework"_s, Fit::somewhere);
        answers_.find(u"d/4"_s, u"Opera – Homework"_s, Fit::somewhere);
    }

    [[nodiscard]] QString callRunner(const QString &method, const QStringList &arguments = {})
    {
        return call(interface + u'.' + method, arguments);
    }

    [[nodiscard]] QList<RunnerMatch> match(const QString &query)
    {
        const QDBusPendingCall pending = asyncCall(interface, u"Match"_s, {query});
        EXPECT_TRUE(QTest::qWaitFor([&pending] { return pending.isFinished(); }));
        EXPECT_EQ(pending.reply().signature(), u"a(sssida{sv})"_s);
        return qdbus_cast<QList<RunnerMatch>>(pending.reply().arguments().value(0));
    }
};

TEST_F(RunnerInterfaceTest, AMatchHasItsTextsAndItsPictureInsteadOfANamedIcon)
{
    const QList<RunnerMatch> matches = match(u"wörk https://example.org"_s);
    EXPECT_EQ(answers_.takeCalls(), QStringList(u"search wörk https://example.org 20"_s));
    ASSERT_EQ(matches.size(), 4);
    const RunnerMatch &first = matches.first();
    EXPECT_EQ(first.id, u"a/1"_s);
    EXPECT_EQ(first.text, u"Chrome – Wörk"_s);
    EXPECT_EQ(first.iconName, QString());
    EXPECT_EQ(first.properties.value(u"subtext"_s), u"about Chrome – Wörk"_s);
    EXPECT_EQ(first.properties.value(u"actions"_s), QStringList());
    const auto icon = qdbus_cast<IconData>(first.properties.value(u"icon-data"_s));
    EXPECT_EQ(icon.width, 48);
    EXPECT_EQ(icon.pixels.first(4), QByteArray("\x01\x02\x03\xff"));
}

TEST_F(RunnerInterfaceTest, BetterMatchesAreMoreRelevantAndEqualOnesKeepTheirOrder)
{
    const QList<RunnerMatch> matches = match(u"work"_s);
    QList<int> types;
    for (const RunnerMatch &each : matches)
        types.append(each.type);
    EXPECT_EQ(types, QList<int>({100, 30, 30, 30}));
    EXPECT_EQ(matches.first().relevance, 1.0);
    for (qsizetype position = 1; position < matches.size(); ++position)
        EXPECT_LT(matches.at(position).relevance, matches.at(position - 1).relevance) << position;
    EXPECT_GT(matches.last().relevance, 0.5);
}

TEST_F(RunnerInterfaceTest, RunningAMatchOpensItWithTheTokenToldBefore)
{
    EXPECT_EQ(callRunner(u"SetActivationToken"_s, {u"token"_s}), u"()"_s);
    EXPECT_EQ(callRunner(u"Run"_s, {u"a/1"_s, u""_s}), u"()"_s);
    EXPECT_EQ(callRunner(u"Run"_s, {u"b/2"_s, u""_s}), u"()"_s);
    EXPECT_EQ(answers_.takeCalls(), QStringList({u"open found a/1 [token] [] 0"_s, u"open found b/2 [] [] 0"_s}));
}

TEST_F(RunnerInterfaceTest, ThereAreNoActions)
{
    EXPECT_EQ(callRunner(u"Actions"_s), u"(@a(sss) [],)"_s);
    EXPECT_TRUE(callRunner(u"Run"_s, {u"a/1"_s, u"delete"_s}).contains(u"InvalidArgs: There is no action “delete”."_s));
    EXPECT_EQ(answers_.takeCalls(), QStringList());
}

TEST_F(RunnerInterfaceTest, AMatchThatIsGoneIsAnError)
{
    answers_.refuse({ProfileAnswers::Refusal::Reason::unknownProfile, u"There is none."_s});
    EXPECT_EQ(callRunner(u"Run"_s, {u"a/1"_s, u""_s}),
              u"Error: GDBus.Error:app.kestrune.Vantrel.Error.UnknownProfile: There is none."_s);
}

TEST_F(RunnerInterfaceTest, ASessionBeginsAndEnds)
{
    EXPECT_EQ(callRunner(u"Config"_s), u"({'MinLetterCount': <1>},)"_s);
    EXPECT_EQ(callRunner(u"Teardown"_s), u"()"_s);
    EXPECT_EQ(answers_.takeCalls(), QStringList());
}

} // namespace
} // namespace vantrel
