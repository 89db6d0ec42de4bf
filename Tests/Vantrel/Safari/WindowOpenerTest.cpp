#include "Vantrel/Safari/WindowOpener.h"

#include "Tests/Fakes/FakeClock.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeSafariBridge.h"
#include "Tests/Fakes/FakeScriptRunner.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/Vantrel/Safari/SafariPrinting.h"
#include "Vantrel/Safari/Scripts.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace vantrel::Safari {
namespace {

class WindowOpenerTest : public testing::Test {
protected:
    WindowOpenerTest() { safari().windows = {{.id = 5, .tabs = {u"https://open.example/"_s}}}; }

    test::FakeSafariApplication &safari() { return bridge_.application(); }

    void addWindow(qint64 id, const QStringList &tabs = {u"favorites://"_s})
    {
        safari().windows.prepend({.id = id, .tabs = tabs});
    }

    /// Opens the window; `clicked` is what each attempt does.
    QCoro::Task<Result<qint64>> opening(const std::function<Result<>(int)> &clicked)
    {
        const Connection connection{.application = bridge_.shared(), .isFreshlyStarted = isFreshlyStarted_};
        return opener_.open(connection, u"Safari"_s, [clicked](int number) { return attempt(clicked, number); });
    }
    Result<qint64> open(const std::function<Result<>(int)> &clicked) { return QCoro::waitFor(opening(clicked)); }

    static QCoro::Task<Result<>> attempt(std::function<Result<>(int)> clicked, int number)
    {
        co_return clicked(number);
    }

    static QString raise(qint64 id) { return raiseWindowScript(u"Safari"_s, id); }
    static QString close(qint64 id) { return closeWindowScript(u"Safari"_s, id); }

    test::EventProgram program_;
    test::FakeSafariBridge bridge_;
    test::FakeScriptRunner runner_;
    test::FakeClock clock_;
    test::FakeLog log_;
    Scripting scripting_{runner_, log_};
    WindowOpener opener_{{scripting_, clock_}};
    bool isFreshlyStarted_ = false;
};

TEST_F(WindowOpenerTest, TheWindowThatCameIsRaised)
{
    const auto window = open([this](int) {
        addWindow(9);
        return Result<>();
    });
    EXPECT_EQ(window, 9);
    EXPECT_EQ(runner_.takeScripts(), QStringList(raise(9)));
    EXPECT_EQ(clock_.takeSleeps(), QList<int>());
}

TEST_F(WindowOpenerTest, AWindowMayTakeItsTime)
{
    int sleeps = 0;
    clock_.setMeanwhile([this, &sleeps] {
        if (++sleeps == 29)
            addWindow(9);
    });
    int clicks = 0;
    EXPECT_EQ(open([&clicks](int) {
                  ++clicks;
                  return Result<>();
              }),
              9);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(clock_.takeSleeps(), QList<int>(29, 100));
}

TEST_F(WindowOpenerTest, AClickThatDidNothingIsRepeated)
{
    QList<int> numbers;
    EXPECT_EQ(open([this, &numbers](int number) {
                  numbers.append(number);
                  if (number == 3)
                      addWindow(9);
                  return Result<>();
              }),
              9);
    EXPECT_EQ(numbers, QList<int>({1, 2, 3}));
}

TEST_F(WindowOpenerTest, WithoutAWindowItFailsInTheEnd)
{
    int clicks = 0;
    const auto window = open([&clicks](int) {
        ++clicks;
        return Result<>();
    });
    ASSERT_FALSE(window.has_value());
    EXPECT_EQ(window.error(), Failure::windowNotOpened());
    EXPECT_EQ(clicks, 3);
    EXPECT_EQ(runner_.takeScripts(), QStringList());
}

TEST_F(WindowOpenerTest, AFailedAttemptIsNotRepeated)
{
    int clicks = 0;
    const auto window = open([&clicks](int) -> Result<> {
        ++clicks;
        return std::unexpected(Failure::noProfile(u"Work"_s));
    });
    ASSERT_FALSE(window.has_value());
    EXPECT_EQ(window.error(), Failure::noProfile(u"Work"_s));
    EXPECT_EQ(clicks, 1);
}

TEST_F(WindowOpenerTest, ASafariThatDoesNotAnswerIsNotClicked)
{
    safari().silences = 1;
    int clicks = 0;
    const auto window = open([&clicks](int) {
        ++clicks;
        return Result<>();
    });
    ASSERT_FALSE(window.has_value());
    EXPECT_EQ(window.error(), Failure::timeOut());
    EXPECT_EQ(clicks, 0);
}

TEST_F(WindowOpenerTest, ASafariThatStopsAnsweringIsATimeOut)
{
    const auto window = open([this](int) {
        safari().silences = -1;
        return Result<>();
    });
    ASSERT_FALSE(window.has_value());
    EXPECT_EQ(window.error(), Failure::timeOut());
}

TEST_F(WindowOpenerTest, AWindowThatCanNotBeRaisedIsOpenAllTheSame)
{
    runner_.answer(test::FakeScriptRunner::hanging());
    EXPECT_EQ(open([this](int) {
                  addWindow(9);
                  return Result<>();
              }),
              9);
}

TEST_F(WindowOpenerTest, OfSeveralNewWindowsTheFrontOneCountsAndBlankOnesAreClosed)
{
    EXPECT_EQ(open([this](int) {
                  addWindow(9);
                  addWindow(10, {u"https://a.example/"_s});
                  addWindow(11, {u""_s, u""_s});
                  addWindow(12);
                  return Result<>();
              }),
              12);
    EXPECT_EQ(runner_.takeScripts(), QStringList({raise(12), close(9)}));
}

TEST_F(WindowOpenerTest, TheWindowThatAStartingSafariOpensIsNotTheOneAskedForAndIsClosed)
{
    isFreshlyStarted_ = true;
    safari().windows.clear();
    int sleeps = 0;
    clock_.setMeanwhile([this, &sleeps] {
        if (++sleeps == 4)
            addWindow(3);
    });
    EXPECT_EQ(open([this](int) {
                  addWindow(9);
                  return Result<>();
              }),
              9);
    EXPECT_EQ(runner_.takeScripts(), QStringList({raise(9), close(3)}));
}

TEST_F(WindowOpenerTest, WhatAStartingSafariRestoresStays)
{
    isFreshlyStarted_ = true;
    const auto click = [this](int) {
        addWindow(9);
        return Result<>();
    };
    EXPECT_EQ(open(click), 9);
    safari().windows = {{.id = 2, .tabs = {u""_s}}, {.id = 3, .tabs = {u"favorites://"_s}}};
    EXPECT_EQ(open(click), 9);
    EXPECT_EQ(runner_.takeScripts(), QStringList(2, raise(9)));
}

TEST_F(WindowOpenerTest, ABlankWindowOfARunningSafariStays)
{
    safari().windows = {{.id = 2, .tabs = {u"favorites://"_s}}};
    EXPECT_EQ(open([this](int) {
                  addWindow(9);
                  return Result<>();
              }),
              9);
    EXPECT_EQ(runner_.takeScripts(), QStringList(raise(9)));
}

TEST_F(WindowOpenerTest, AStartingSafariWithoutWindowsOrAnswersIsNotWaitedForForEver)
{
    isFreshlyStarted_ = true;
    safari().windows.clear();
    EXPECT_EQ(open([this](int) {
                  addWindow(9);
                  return Result<>();
              }),
              9);
    EXPECT_EQ(clock_.takeSleeps(), QList<int>(30, 100));
    safari().silences = -1;
    EXPECT_EQ(open([](int) { return Result<>(); }).error(), Failure::timeOut());
    EXPECT_EQ(clock_.takeSleeps(), QList<int>(3, 100));
    safari().silences = 2;
    EXPECT_EQ(open([this](int) {
                  addWindow(10);
                  return Result<>();
              }),
              10);
}

TEST_F(WindowOpenerTest, WindowsAreOpenedOneAfterTheOther)
{
    runner_.hold();
    QStringList order;
    const auto clickFor = [this, &order](qint64 id) {
        return [this, &order, id](int) {
            order.append(QString::number(id));
            addWindow(id);
            return Result<>();
        };
    };
    auto first = opening(clickFor(9));
    auto second = opening(clickFor(10));
    auto third = opening(clickFor(11));
    EXPECT_EQ(order, QStringList(u"9"_s));
    ASSERT_TRUE(runner_.letGo());
    EXPECT_EQ(order, QStringList({u"9"_s, u"10"_s}));
    ASSERT_TRUE(runner_.letGo());
    ASSERT_TRUE(runner_.letGo());
    EXPECT_EQ(QCoro::waitFor(std::move(first)), 9);
    EXPECT_EQ(QCoro::waitFor(std::move(second)), 10);
    EXPECT_EQ(QCoro::waitFor(std::move(third)), 11);
    EXPECT_EQ(runner_.takeScripts(), QStringList({raise(9), raise(10), raise(11)}));
}

TEST_F(WindowOpenerTest, AFailureLetsTheNextOneThrough)
{
    EXPECT_FALSE(open([](int) -> Result<> { return std::unexpected(Failure::timeOut()); }).has_value());
    EXPECT_EQ(open([this](int) {
                  addWindow(9);
                  return Result<>();
              }),
              9);
}

} // namespace
} // namespace vantrel::Safari
