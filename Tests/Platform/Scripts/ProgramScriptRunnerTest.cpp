#include "Platform/ProgramScriptRunner.h"

#include "Tests/Contract/ScriptRunnerContract.h"
#include "Tests/Fakes/FakeScriptRunner.h"
#include "Tests/VantrelKit/TemporaryFolder.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHash>
#include <QThread>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vantrel {
namespace {

const QString program = QStringLiteral(SCRIPT_PROGRAM);
/// Long enough for what ends by itself on a busy machine.
constexpr std::chrono::milliseconds longLimit = 60s;
constexpr std::chrono::milliseconds shortLimit = 300ms;

class ProgramSystem {
public:
    ScriptRunner &runner() { return runner_; }
    ScriptRunner &impatientRunner() { return impatient_; }
    ScriptRunner &brokenRunner() { return broken_; }

    /// Bytes beyond what an argument may hold are written as their number.
    static QString script(const test::ScriptPlay &play)
    {
        qsizetype same = 0;
        while (same < play.output.size() && same < play.errors.size() && play.output[same] == 'x' &&
               play.errors[same] == 'x')
            ++same;
        return u"#play fill=%1 out=%2 err=%3 status=%4 %5"_s.arg(same)
            .arg(QString::fromLatin1(play.output.sliced(same).toHex()),
                 QString::fromLatin1(play.errors.sliced(same).toHex()))
            .arg(play.status)
            .arg(play.hangs ? u"hang=1"_s : QString());
    }

private:
    ProgramScriptRunner runner_{program, longLimit};
    ProgramScriptRunner impatient_{program, shortLimit};
    ProgramScriptRunner broken_{u"/no/such/osascript"_s, longLimit};
};

class FakeSystem {
public:
    FakeSystem()
    {
        const auto answer = [this](const QString &script) { return ends_.value(script); };
        runner_.setHandler(answer);
        broken_.setHandler([](const QString &) { return test::FakeScriptRunner::refusing(u"No such file"_s); });
    }

    ScriptRunner &runner() { return runner_; }
    ScriptRunner &impatientRunner() { return runner_; }
    ScriptRunner &brokenRunner() { return broken_; }

    QString script(const test::ScriptPlay &play)
    {
        const QString script = QString::number(ends_.size());
        const ScriptEnd end{play.status, QString::fromUtf8(play.output), QString::fromUtf8(play.errors)};
        ends_.insert(script, play.hangs ? ScriptEnd() : end);
        return script;
    }

private:
    QHash<QString, ScriptEnd> ends_;
    test::FakeScriptRunner runner_;
    test::FakeScriptRunner broken_;
};

class ProgramScriptRunnerTest : public testing::Test {
protected:
    static std::expected<ScriptEnd, PlatformError> run(const QString &script, const QString &path = program,
                                                       std::chrono::milliseconds limit = longLimit)
    {
        ProgramScriptRunner runner(path, limit);
        return QCoro::waitFor(runner.run(script));
    }

    static QString output(const QString &script)
    {
        const auto end = run(script);
        EXPECT_TRUE(end.has_value()) << end.error().message.toStdString();
        return end.value_or(ScriptEnd()).output;
    }

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    QCoreApplication program_{argumentCount_, arguments_};
};

TEST_F(ProgramScriptRunnerTest, AScriptIsTheArgumentBehindItsOption)
{
    QStringList scripts{QString(), u"-e"_s, u"tell application \"Safari\" to activate\ndelay 0.1"_s};
    for (const QString &text : test::oddTexts()) {
        // Nothing behind a zero byte reaches any program.
        if (!text.contains(QChar(u'\0')))
            scripts.append(text);
    }
    for (const QString &script : std::as_const(scripts))
        EXPECT_EQ(output(script), u"-e|"_s + script + u'|');
}

TEST_F(ProgramScriptRunnerTest, FiveSecondsAreTheLimit)
{
    static_assert(ProgramScriptRunner::usualLimit == 5s);
    QElapsedTimer timer;
    timer.start();
    ProgramScriptRunner runner(program);
    const auto end = QCoro::waitFor(runner.run(u"#play hang=1"_s));
    EXPECT_GE(timer.elapsed(), 5000);
    ASSERT_TRUE(end.has_value());
    EXPECT_EQ(*end, ScriptEnd());
}

TEST_F(ProgramScriptRunnerTest, TheThreadIsFreeWhileAScriptRuns)
{
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&ticks] { ++ticks; });
    timer.start(10ms);
    std::ignore = run(u"#play hang=1"_s, program, 300ms);
    EXPECT_GE(ticks, 5);
}

TEST_F(ProgramScriptRunnerTest, AScriptThatEndedWhileTheThreadWasBusyDidNotTakeTooLong)
{
    ProgramScriptRunner runner(program, shortLimit);
    auto running = runner.run(u"#play status=2 out=6869"_s);
    QThread::sleep(1);
    const auto end = QCoro::waitFor(std::move(running));
    ASSERT_TRUE(end.has_value());
    EXPECT_EQ(*end, (ScriptEnd{.status = 2, .output = u"hi"_s, .errorText = {}}));
}

/// The processes that this one has started and that are there, running or dead.
QStringList children()
{
    QFile list(u"/proc/self/task/%1/children"_s.arg(QCoreApplication::applicationPid()));
    EXPECT_TRUE(list.open(QIODevice::ReadOnly)) << list.fileName().toStdString();
    return QString::fromLatin1(list.readAll()).split(u' ', Qt::SkipEmptyParts);
}

bool waitUntilNoChildren()
{
    QElapsedTimer timer;
    timer.start();
    while (!children().isEmpty() && timer.elapsed() < 20'000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    return children().isEmpty();
}

TEST_F(ProgramScriptRunnerTest, WhatTakesTooLongIsEndedAlsoWhenItDoesNotWantTo)
{
    for (const QString &script : {u"#play hang=1"_s, u"#play stubborn=1 hang=1"_s}) {
        ProgramScriptRunner runner(program, shortLimit);
        const auto end = QCoro::waitFor(runner.run(script));
        ASSERT_TRUE(end.has_value());
        EXPECT_EQ(end->status, std::nullopt);
        EXPECT_TRUE(waitUntilNoChildren()) << script.toStdString();
    }
}

TEST_F(ProgramScriptRunnerTest, WhatDoesNotEndDiesWithTheRunner)
{
    {
        ProgramScriptRunner runner(program, shortLimit);
        std::ignore = QCoro::waitFor(runner.run(u"#play stubborn=1 hang=1"_s));
        EXPECT_EQ(children().size(), 1);
    }
    EXPECT_EQ(children(), QStringList());
}

TEST_F(ProgramScriptRunnerTest, ASignalIsAFailure)
{
    const auto end = run(u"#play err=6f6f signal=9"_s);
    ASSERT_TRUE(end.has_value());
    EXPECT_EQ(end->status, 128 + 9);
}

TEST_F(ProgramScriptRunnerTest, AChildThatKeepsTheOutputOpenIsNotWaitedFor)
{
    const auto end = run(u"#play out=6869 child=1"_s);
    ASSERT_TRUE(end.has_value());
    EXPECT_EQ(*end, (ScriptEnd{.status = 0, .output = u"hi"_s, .errorText = {}}));
}

TEST_F(ProgramScriptRunnerTest, AMarkAtTheBeginningIsPartOfTheText)
{
    EXPECT_EQ(output(u"#play out=efbbbf61"_s), u"\uFEFFa"_s);
}

TEST_F(ProgramScriptRunnerTest, TheSystemsReasonForNotStartingIsPassedOn)
{
    const test::TemporaryFolder folder;
    const QString noProgram = folder.write(u"osascript"_s, "text");
    const auto missing = run(u"1"_s, u"/no/such/osascript"_s);
    ASSERT_FALSE(missing.has_value());
    EXPECT_EQ(missing.error().message, u"/no/such/osascript can't be started: No such file or directory."_s);
    const auto refused = run(u"1"_s, noProgram);
    ASSERT_FALSE(refused.has_value());
    EXPECT_EQ(refused.error().message, noProgram + u" can't be started: Permission denied."_s);
}

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(Program, ScriptRunnerContract, ProgramSystem);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, ScriptRunnerContract, FakeSystem);

} // namespace test
} // namespace vantrel
