#pragma once

#include "Platform/ScriptRunner.h"
#include "Tests/VantrelKit/Samples.h"

#include <QCoreApplication>
#include <QCoroTask>
#include <QTimer>

#include <gtest/gtest.h>

#include <chrono>
#include <concepts>

/// What every implementation of `ScriptRunner` keeps to: `INSTANTIATE_TYPED_TEST_SUITE_P(Name, ScriptRunnerContract,
/// System)`.
namespace vantrel::test {

/// What a script is to do.
struct ScriptPlay {
    int status = 0;
    QByteArray output = {};
    QByteArray errors = {};
    bool hangs = false;
};

/// Where an implementation runs.
template <typename System>
concept ScriptRunnerSystem = std::default_initializable<System> && requires(System system, const ScriptPlay &play) {
    { system.runner() } -> std::same_as<ScriptRunner &>;
    /// One that lets scripts run for a short time only.
    { system.impatientRunner() } -> std::same_as<ScriptRunner &>;
    /// One that can't start any script.
    { system.brokenRunner() } -> std::same_as<ScriptRunner &>;
    /// A script that does this.
    { system.script(play) } -> std::same_as<QString>;
};

template <ScriptRunnerSystem System>
class ScriptRunnerContract : public testing::Test {
protected:
    using End = std::expected<ScriptEnd, PlatformError>;

    End run(const ScriptPlay &play) { return run(system_.runner(), play); }
    End run(ScriptRunner &runner, const ScriptPlay &play) { return QCoro::waitFor(runner.run(system_.script(play))); }

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    /// Whose events a task may wait for.
    QCoreApplication program_{argumentCount_, arguments_};

protected:
    System system_;
};

TYPED_TEST_SUITE_P(ScriptRunnerContract);

TYPED_TEST_P(ScriptRunnerContract, WhatAScriptPrintsIsPassedOnUnchanged)
{
    for (const QString &text : oddTexts() + QStringList{QString(), QStringLiteral("\n"), QStringLiteral(" a\n\n")}) {
        const auto end = this->run({.output = text.toUtf8()});
        ASSERT_TRUE(end.has_value()) << end.error().message.toStdString();
        EXPECT_EQ(end->status, 0);
        EXPECT_EQ(end->output, text);
        EXPECT_EQ(end->errorText, QString());
    }
}

TYPED_TEST_P(ScriptRunnerContract, AFailedScriptHasItsStatusAndBothTexts)
{
    const auto end = this->run({.status = 3, .output = "some", .errors = " not allowed (-1743)\n"});
    ASSERT_TRUE(end.has_value()) << end.error().message.toStdString();
    EXPECT_EQ(end->status, 3);
    EXPECT_EQ(end->output, QStringLiteral("some"));
    EXPECT_EQ(end->errorText, QStringLiteral(" not allowed (-1743)\n"));
}

TYPED_TEST_P(ScriptRunnerContract, TenMebibytesArriveWholeFromBothStreams)
{
    const QByteArray much(qsizetype{10} * 1024 * 1024, 'x');
    const auto end = this->run({.status = 1, .output = much + "!", .errors = much + "?"});
    ASSERT_TRUE(end.has_value()) << end.error().message.toStdString();
    EXPECT_EQ(end->status, 1);
    EXPECT_TRUE(end->output == QString::fromLatin1(much) + u'!') << end->output.size();
    EXPECT_TRUE(end->errorText == QString::fromLatin1(much) + u'?') << end->errorText.size();
}

TYPED_TEST_P(ScriptRunnerContract, WhatIsNoTextIsReplaced)
{
    const auto end = this->run({.status = 1,
                                .output = "a\xff"
                                          "b\xc3",
                                .errors = "\xe2\x82"});
    ASSERT_TRUE(end.has_value()) << end.error().message.toStdString();
    EXPECT_TRUE(end->output.startsWith(QStringLiteral("a\uFFFDb\uFFFD"))) << end->output.toStdString();
    EXPECT_TRUE(end->errorText.contains(QChar(0xFFFD))) << end->errorText.toStdString();
}

TYPED_TEST_P(ScriptRunnerContract, AScriptThatTakesTooLongHasNoStatus)
{
    const auto end = this->run(this->system_.impatientRunner(), {.output = "some", .hangs = true});
    ASSERT_TRUE(end.has_value()) << end.error().message.toStdString();
    EXPECT_EQ(end->status, std::nullopt);
}

TYPED_TEST_P(ScriptRunnerContract, WhatCanNotBeStartedFailsWithAReason)
{
    const auto end = this->run(this->system_.brokenRunner(), {});
    ASSERT_FALSE(end.has_value());
    EXPECT_FALSE(end.error().message.isEmpty());
}

TYPED_TEST_P(ScriptRunnerContract, ScriptsRunSideBySide)
{
    auto hanging = this->system_.impatientRunner().run(this->system_.script({.hangs = true}));
    const auto end = this->run({.output = "second"});
    ASSERT_TRUE(end.has_value()) << end.error().message.toStdString();
    EXPECT_EQ(end->output, QStringLiteral("second"));
    const auto hung = QCoro::waitFor(std::move(hanging));
    ASSERT_TRUE(hung.has_value());
    EXPECT_EQ(hung->status, std::nullopt);
}

REGISTER_TYPED_TEST_SUITE_P(ScriptRunnerContract, WhatAScriptPrintsIsPassedOnUnchanged,
                            AFailedScriptHasItsStatusAndBothTexts, TenMebibytesArriveWholeFromBothStreams,
                            WhatIsNoTextIsReplaced, AScriptThatTakesTooLongHasNoStatus,
                            WhatCanNotBeStartedFailsWithAReason, ScriptsRunSideBySide);

} // namespace vantrel::test
