#pragma once

#include <QEventLoop>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <optional>

namespace vantrel::test {

/// What something answers that blocks, as another process would, while this thread handles its events.
template <typename Action>
auto beside(Action action)
{
    QEventLoop loop;
    std::optional<decltype(action())> result;
    const std::unique_ptr<QThread> thread(QThread::create([&] { result.emplace(action()); }));
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    QTimer::singleShot(std::chrono::seconds(15), &loop, [&loop] {
        ADD_FAILURE() << "It takes too long.";
        loop.quit();
    });
    loop.exec();
    thread->wait();
    return *std::move(result);
}

} // namespace vantrel::test
