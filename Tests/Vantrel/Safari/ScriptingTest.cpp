#include "Vantrel/Safari/Scripting.h"

#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeScriptRunner.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/Vantrel/Safari/SafariPrinting.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel::Safari {
namespace {

using Runner = test::FakeScriptRunner;

class ScriptingTest : public testing::Test {
protected:
    Result<QString> run(const Runner::End &end)
    {
        runner_.answer(end);
        return QCoro::waitFor(scripting_.run(u"script"_s));
    }

    test::EventProgram program_;
    Runner runner_;
    test::FakeLog log_;
    Scripting scripting_{runner_, log_};
};

TEST_F(ScriptingTest, WhatAScriptPrintedIsPassedOnUnchanged)
{
    EXPECT_EQ(run(Runner::printing(u" a\n\n"_s)), u" a\n\n"_s);
    EXPECT_EQ(run(Runner::printing({})), QString());
    EXPECT_EQ(runner_.takeScripts(), QStringList(2, u"script"_s));
    EXPECT_EQ(log_.takeLines(), QStringList());
}

TEST_F(ScriptingTest, AFailureIsLoggedWithoutTheBlanksAroundIt)
{
    EXPECT_EQ(run(Runner::failing(u" \n\tnot authorised (-1743)\r\n "_s)).error(), Failure::automation());
    EXPECT_EQ(run(Runner::failing(u"Can’t get\nprocess.\n"_s, 2)).error(), Failure{u"Can’t get\nprocess."_s});
    EXPECT_EQ(log_.takeLines(), QStringList({u"[ScriptingErrors] error: AppleScript failed: not authorised (-1743)"_s,
                                             u"[ScriptingErrors] error: AppleScript failed: Can’t get\\nprocess."_s}));
}

TEST_F(ScriptingTest, ASilentFailureMeansThatTheMenuIsUnreadable)
{
    EXPECT_EQ(run(Runner::failing(u"\n"_s)).error(), Failure::menuUnreadable());
    EXPECT_EQ(log_.takeLines(), QStringList(u"[ScriptingErrors] error: AppleScript failed: "_s));
}

TEST_F(ScriptingTest, AHangIsTheTimeOut)
{
    EXPECT_EQ(run(Runner::hanging()).error(), Failure::timeOut());
    EXPECT_EQ(log_.takeLines(), QStringList());
}

TEST_F(ScriptingTest, WhatCanNotBeStartedHasTheSystemsWords)
{
    EXPECT_EQ(run(Runner::refusing(u"No such file -1743"_s)).error(), Failure{u"No such file -1743"_s});
}

TEST_F(ScriptingTest, AListIsItsLines)
{
    runner_.answer(Runner::printing(u"a\n\nb\n\n"_s));
    EXPECT_EQ(QCoro::waitFor(scripting_.list(u"script"_s)), QStringList({u"a"_s, u""_s, u"b"_s}));
    runner_.answer(Runner::failing({}));
    EXPECT_EQ(QCoro::waitFor(scripting_.list(u"script"_s)).error(), Failure::menuUnreadable());
}

} // namespace
} // namespace vantrel::Safari
