#pragma once

#include <QFuture>
#include <QPromise>

#include <memory>

namespace vantrel {

/// What the system answers later, on a thread of its own, to a task that waits on its own. Copies share it; the one who
/// waits keeps one, so that an answer that never comes is waited for instead of being missed.
template <typename T>
class Answer {
public:
    Answer() { promise_->start(); }

    /// Any thread, once.
    void give(T value) const
    {
        promise_->addResult(std::move(value));
        promise_->finish();
    }

    [[nodiscard]] QFuture<T> future() const { return promise_->future(); }

private:
    std::shared_ptr<QPromise<T>> promise_ = std::make_shared<QPromise<T>>();
};

} // namespace vantrel
