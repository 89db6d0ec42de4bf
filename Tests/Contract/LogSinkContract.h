#pragma once

#include "Platform/LogSink.h"
#include "Tests/VantrelKit/Printing.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <concepts>
#include <thread>
#include <vector>

/// What every implementation of `LogSink` keeps to: `INSTANTIATE_TYPED_TEST_SUITE_P(Name, LogSinkContract, System)`.
namespace vantrel::test {

/// A log, and what somebody finds in it who merely reads it.
template <typename System>
concept LogSinkSystem = std::default_initializable<System> && requires(System system, qsizetype count) {
    { system.sink() } -> std::same_as<LogSink &>;
    /// What came since the system was made, as "[Category] text", in the log's order. Waits until there is as much, not
    /// for ever.
    { system.lines(count) } -> std::same_as<QStringList>;
};

template <LogSinkSystem System>
class LogSinkContract : public testing::Test {
protected:
    LogSink &sink() { return system_.sink(); }

    void write(const QString &text, const QString &category = QStringLiteral("Profiles"),
               LogLevel level = LogLevel::notice)
    {
        sink().write(level, category, {{.text = text}});
    }

    System system_;
};

TYPED_TEST_SUITE_P(LogSinkContract);

TYPED_TEST_P(LogSinkContract, ALineHasItsCategoryAndItsTextWhateverThatIs)
{
    const QStringList texts{QStringLiteral("Größe 東京 👩‍💻"), QStringLiteral("100 %"),
                            QStringLiteral("%s %d %n %@ %ld %{public}s %{private}s %1 %%"),
                            QStringLiteral("  \"quoted\" \\n \\ <private> [x] ")};
    QStringList expected;
    for (const QString &text : texts) {
        this->write(text, QStringLiteral("Größe %s"));
        expected.append(QStringLiteral("[Größe %s] ") + text);
    }
    EXPECT_EQ(this->system_.lines(expected.size()), expected);
}

TYPED_TEST_P(LogSinkContract, LinesOfSeveralCategoriesAndLevelsAreInTheirOrder)
{
    this->write(QStringLiteral("one"), QStringLiteral("Profiles"));
    this->write(QStringLiteral("two"), QStringLiteral("Open"), LogLevel::error);
    this->write(QStringLiteral("three"), QStringLiteral("Profiles"));
    this->write(QStringLiteral("three"), QStringLiteral("Profiles"));
    const QStringList expected{QStringLiteral("[Profiles] one"), QStringLiteral("[Open] two"),
                               QStringLiteral("[Profiles] three"), QStringLiteral("[Profiles] three")};
    EXPECT_EQ(this->system_.lines(expected.size()), expected);
}

TYPED_TEST_P(LogSinkContract, WhatIsPrivateIsNotThereAndWhatIsPublicAroundItIs)
{
    this->sink().write(LogLevel::error, QStringLiteral("Open"),
                       {{.text = QStringLiteral("before ")},
                        {.text = QStringLiteral("https://one.example/"), .isPrivate = true},
                        {.text = QStringLiteral("https://two.example/"), .isPrivate = true},
                        {.text = QStringLiteral(" after")}});
    this->sink().write(LogLevel::notice, QStringLiteral("Open"),
                       {{.text = QStringLiteral("https://three.example/"), .isPrivate = true}});
    const QStringList lines = this->system_.lines(2);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines.first().startsWith(QStringLiteral("[Open] before "))) << lines.first().toStdString();
    EXPECT_TRUE(lines.first().endsWith(QStringLiteral(" after"))) << lines.first().toStdString();
    for (const QString &line : lines)
        EXPECT_FALSE(line.contains(QStringLiteral("example"))) << line.toStdString();
}

TYPED_TEST_P(LogSinkContract, LinesOfSeveralThreadsArriveWholeAndOnceEachThreadsInItsOrder)
{
    constexpr int threadCount = 4;
    constexpr int lineCount = 40;
    const QString rest = QStringLiteral(" of many").repeated(20);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([this, thread, &rest] {
            for (int line = 0; line < lineCount; ++line)
                this->write(QString::number(line) + rest, QString::number(thread));
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    const QStringList lines = this->system_.lines(qsizetype{threadCount} * lineCount);
    EXPECT_EQ(lines.size(), qsizetype{threadCount} * lineCount);
    for (int thread = 0; thread < threadCount; ++thread) {
        const QString category = QStringLiteral("[%1] ").arg(thread);
        QStringList expected;
        for (int line = 0; line < lineCount; ++line)
            expected.append(category + QString::number(line) + rest);
        EXPECT_EQ(lines.filter(category), expected);
    }
}

REGISTER_TYPED_TEST_SUITE_P(LogSinkContract, ALineHasItsCategoryAndItsTextWhateverThatIs,
                            LinesOfSeveralCategoriesAndLevelsAreInTheirOrder,
                            WhatIsPrivateIsNotThereAndWhatIsPublicAroundItIs,
                            LinesOfSeveralThreadsArriveWholeAndOnceEachThreadsInItsOrder);

} // namespace vantrel::test
