#pragma once

#include <QtGlobal>

#include <coroutine>
#include <deque>
#include <utility>

namespace vantrel::Safari {

/// Lets tasks through one at a time, in the order in which they come. Main thread only; must outlive the turns.
class Turns {
public:
    /// Held by the task whose turn it is; the next one comes when it goes.
    class Turn {
    public:
        explicit Turn(Turns &turns) : turns_(&turns) {}
        Turn(Turn &&other) noexcept : turns_(std::exchange(other.turns_, nullptr)) {}
        Turn(const Turn &) = delete;
        Turn &operator=(const Turn &) = delete;
        Turn &operator=(Turn &&) = delete;
        ~Turn()
        {
            if (turns_)
                turns_->pass();
        }

    private:
        Turns *turns_;
    };

    /// What a task waits for.
    class Awaiter {
    public:
        explicit Awaiter(Turns &turns) : turns_(turns) {}
        [[nodiscard]] bool await_ready() const noexcept { return !std::exchange(turns_.isTaken_, true); }
        void await_suspend(std::coroutine_handle<> task) { turns_.waiting_.push_back(task); }
        [[nodiscard]] Turn await_resume() { return Turn(turns_); }

    private:
        Turns &turns_;
    };

    Turns() = default;
    Q_DISABLE_COPY_MOVE(Turns)
    ~Turns() = default;

    [[nodiscard]] Awaiter next() { return Awaiter(*this); }

private:
    void pass()
    {
        if (waiting_.empty()) {
            isTaken_ = false;
            return;
        }
        const std::coroutine_handle<> task = waiting_.front();
        waiting_.pop_front();
        task.resume();
    }

    bool isTaken_ = false;
    std::deque<std::coroutine_handle<>> waiting_;
};

} // namespace vantrel::Safari
