#include "Vantrel/Safari/WindowOpener.h"

#include "Vantrel/Safari/LinkPlacer.h"
#include "Vantrel/Safari/Scripts.h"

#include <tuple>

namespace vantrel::Safari {
namespace {

constexpr int attempts = 3;
/// Three seconds for a window to come: a second window is worse than a slow one.
constexpr int windowPolls = 30;
constexpr std::chrono::milliseconds windowPause{100};

QList<qint64> without(const QList<qint64> &windows, const QList<qint64> &others)
{
    QList<qint64> result;
    for (const qint64 window : windows) {
        if (!others.contains(window))
            result.append(window);
    }
    return result;
}

/// Safari's own first window, which nobody asked for; with several, they are the last session's.
QList<qint64> startWindow(const Connection &connection, const QList<qint64> &windows)
{
    return connection.isFreshlyStarted && windows.size() == 1 ? windows : QList<qint64>();
}

} // namespace

QCoro::Task<Result<qint64>> WindowOpener::open(Connection connection, QString name, Attempt attempt)
{
    const Turns::Turn turn = co_await turns_.next();
    const WindowIDs before = co_await windowsBefore(connection);
    if (!before)
        co_return std::unexpected(Failure::timeOut());
    for (int number = 1; number <= attempts; ++number) {
        const auto attempted = co_await attempt(number);
        if (!attempted)
            co_return std::unexpected(attempted.error());
        const WindowIDs opened = co_await windowsAfter(connection, *before);
        if (!opened)
            co_return std::unexpected(Failure::timeOut());
        if (opened->isEmpty())
            continue;
        const qint64 window = opened->constFirst();
        // The window is there: that it may not be the front one is no reason to say that it didn't open.
        std::ignore = co_await environment_.scripting.run(raiseWindowScript(name, window));
        const QList<qint64> surplus = opened->sliced(1) + startWindow(connection, *before);
        for (const qint64 other : surplus)
            co_await closeIfBlank(connection, name, other);
        co_return window;
    }
    co_return std::unexpected(Failure::windowNotOpened());
}

QCoro::Task<WindowOpener::WindowIDs> WindowOpener::windowsBefore(Connection connection)
{
    WindowIDs windows = co_await connection.application->windowIDs();
    if (!connection.isFreshlyStarted)
        co_return windows;
    // A Safari that was just started opens a window by itself, which must not pass for the one that is asked for.
    // One that doesn't answer takes time by itself.
    for (int waited = 0; waited < windowPolls && (!windows || windows->isEmpty()); waited += windows ? 1 : 10) {
        co_await environment_.clock.sleep(windowPause);
        windows = co_await connection.application->windowIDs();
    }
    co_return windows;
}

QCoro::Task<WindowOpener::WindowIDs> WindowOpener::windowsAfter(Connection connection, QList<qint64> before)
{
    WindowIDs opened;
    for (int poll = 1; poll <= windowPolls; ++poll) {
        const WindowIDs now = co_await connection.application->windowIDs();
        // An answer that doesn't come has taken long enough.
        if (!now)
            co_return std::nullopt;
        opened = without(*now, before);
        if (!opened->isEmpty())
            co_return opened;
        if (poll < windowPolls)
            co_await environment_.clock.sleep(windowPause);
    }
    co_return opened;
}

QCoro::Task<> WindowOpener::closeIfBlank(Connection connection, QString name, qint64 windowID)
{
    const auto urls = co_await connection.application->tabURLs(windowID);
    if (urls && LinkPlacer::isBlank(*urls))
        std::ignore = co_await environment_.scripting.run(closeWindowScript(name, windowID));
}

} // namespace vantrel::Safari
