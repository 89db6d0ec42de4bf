#pragma once

#include "Platform/RunningApplications.h"
#include "Tests/VantrelKit/Printing.h"
#include "Tests/VantrelKit/Samples.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <gtest/gtest.h>

#include <chrono>
#include <concepts>
#include <functional>
#include <optional>
#include <utility>

/// What every implementation of `RunningApplications` keeps to:
/// `INSTANTIATE_TYPED_TEST_SUITE_P(Name, RunningApplicationsContract, System)`.
namespace vantrel::test {

/// Lets the event loop run until the condition holds; false when it doesn't in time.
inline bool waitUntil(const std::function<bool()> &condition)
{
    bool isOver = false;
    QTimer timer;
    // What ends the wait is also what wakes the loop, which sleeps while nothing happens.
    QObject::connect(&timer, &QTimer::timeout, &timer, [&isOver] { isOver = true; });
    timer.start(std::chrono::seconds(20));
    while (!condition() && !isOver)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return condition();
}

/// Where an implementation runs. It provides two applications, by the bundle identifiers of browsers; neither runs at
/// first, and of each two instances can run.
template <typename System>
concept RunningApplicationsSystem =
    std::default_initializable<System> && requires(System system, const QString &bundleID) {
        { system.applications() } -> std::same_as<RunningApplications &>;
        { system.first() } -> std::same_as<QString>;
        { system.second() } -> std::same_as<QString>;
        /// Done once the instance runs.
        { system.start(bundleID) } -> std::same_as<void>;
        /// Ends the instance started last. Done once it has ended, without the event loop, which may tell of it.
        { system.end(bundleID) } -> std::same_as<void>;
        /// Makes an end to the implementation.
        { system.destroyApplications() } -> std::same_as<void>;
    };

template <RunningApplicationsSystem System>
class RunningApplicationsContract : public testing::Test {
protected:
    RunningApplications &applications() { return system_->applications(); }
    bool isRunning(const QString &bundleID) { return applications().isRunning(bundleID); }

    void watch(const QStringList &bundleIDs)
    {
        applications().watch(bundleIDs, [this](const QString &bundleID, bool isStillRunning) {
            told_.append(bundleID);
            EXPECT_EQ(isStillRunning, isRunning(bundleID));
        });
    }

    /// What was told since the last call, once there are as many.
    QStringList told(qsizetype count)
    {
        EXPECT_TRUE(waitUntil([this, count] { return told_.size() >= count; })) << "Not told in time.";
        return std::exchange(told_, QStringList());
    }

    QStringList told_;

private:
    int argumentCount_ = 1;
    char name_[8] = "vantrel";
    char *arguments_[2] = {name_, nullptr};
    /// Whose events tell of ends.
    QCoreApplication program_{argumentCount_, arguments_};

protected:
    std::optional<System> system_{std::in_place};
};

TYPED_TEST_SUITE_P(RunningApplicationsContract);

TYPED_TEST_P(RunningApplicationsContract, AnApplicationRunsFromItsStartToItsEndAlsoUnwatched)
{
    const QString first = this->system_->first();
    EXPECT_FALSE(this->isRunning(first));
    this->system_->start(first);
    EXPECT_TRUE(this->isRunning(first));
    EXPECT_FALSE(this->isRunning(this->system_->second()));
    this->system_->end(first);
    // The event loop may have to hear of it.
    EXPECT_TRUE(waitUntil([this, &first] { return !this->isRunning(first); }));
}

TYPED_TEST_P(RunningApplicationsContract, UnknownApplicationsNeverRun)
{
    const QString first = this->system_->first();
    this->system_->start(first);
    this->watch({first, unknownBrowser});
    for (const QString &identifier : {QString(), unknownBrowser, first.toUpper(), first.chopped(1)})
        EXPECT_FALSE(this->isRunning(identifier)) << identifier.toStdString();
}

TYPED_TEST_P(RunningApplicationsContract, TheEndOfWhatRanBeforeItWasWatchedIsTold)
{
    const QString first = this->system_->first();
    this->system_->start(first);
    this->watch({this->system_->second(), first});
    EXPECT_TRUE(this->isRunning(first));
    this->system_->end(first);
    EXPECT_EQ(this->told(1), QStringList(first));
    EXPECT_FALSE(this->isRunning(first));
}

TYPED_TEST_P(RunningApplicationsContract, TheEndOfWhatStartedLaterIsToldEachTime)
{
    const QString second = this->system_->second();
    this->watch({this->system_->first(), second});
    for (int time = 0; time < 3; ++time) {
        this->system_->start(second);
        EXPECT_TRUE(waitUntil([this, &second] { return this->isRunning(second); }));
        // The start is news as well, and an application that nobody saw start ends unnoticed.
        QCoreApplication::processEvents();
        this->system_->end(second);
        EXPECT_EQ(this->told(1), QStringList(second));
    }
}

TYPED_TEST_P(RunningApplicationsContract, AnApplicationRunsUntilItsLastInstanceEndsAndEachEndIsTold)
{
    const QString first = this->system_->first();
    this->system_->start(first);
    this->system_->start(first);
    this->watch({first});
    this->system_->end(first);
    EXPECT_EQ(this->told(1), QStringList(first));
    EXPECT_TRUE(this->isRunning(first));
    this->system_->end(first);
    EXPECT_EQ(this->told(1), QStringList(first));
    EXPECT_FALSE(this->isRunning(first));
}

TYPED_TEST_P(RunningApplicationsContract, NothingIsToldBeforeTheEventLoopRunsNorOfStarts)
{
    const QString first = this->system_->first();
    this->watch({first});
    this->system_->start(first);
    QCoreApplication::processEvents();
    EXPECT_EQ(this->told_, QStringList());
    this->system_->end(first);
    EXPECT_EQ(this->told_, QStringList());
    EXPECT_EQ(this->told(1), QStringList(first));
}

TYPED_TEST_P(RunningApplicationsContract, ApplicationsThatAreNotWatchedAreNotTold)
{
    const QString first = this->system_->first();
    const QString second = this->system_->second();
    this->system_->start(first);
    this->system_->start(second);
    this->watch({second});
    this->system_->end(first);
    this->system_->end(second);
    EXPECT_EQ(this->told(1), QStringList(second));
}

TYPED_TEST_P(RunningApplicationsContract, NothingIsToldOnceTheObjectIsGone)
{
    const QString first = this->system_->first();
    this->system_->start(first);
    this->watch({first});
    this->system_->end(first);
    this->system_->destroyApplications();
    QCoreApplication::processEvents();
    EXPECT_EQ(this->told_, QStringList());
}

REGISTER_TYPED_TEST_SUITE_P(RunningApplicationsContract, AnApplicationRunsFromItsStartToItsEndAlsoUnwatched,
                            UnknownApplicationsNeverRun, TheEndOfWhatRanBeforeItWasWatchedIsTold,
                            TheEndOfWhatStartedLaterIsToldEachTime,
                            AnApplicationRunsUntilItsLastInstanceEndsAndEachEndIsTold,
                            NothingIsToldBeforeTheEventLoopRunsNorOfStarts, ApplicationsThatAreNotWatchedAreNotTold,
                            NothingIsToldOnceTheObjectIsGone);

} // namespace vantrel::test
