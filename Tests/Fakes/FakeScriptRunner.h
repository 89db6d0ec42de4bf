#pragma once

#include "Platform/ScriptRunner.h"

#include <QStringList>

#include <coroutine>
#include <deque>
#include <functional>
#include <utility>

namespace vantrel::test {

/// Scripts that a test answers. Those that nothing is said about succeed and print nothing.
class FakeScriptRunner final : public ScriptRunner {
public:
    using End = std::expected<ScriptEnd, PlatformError>;

    static End printing(const QString &output) { return ScriptEnd{.status = 0, .output = output, .errorText = {}}; }
    static End failing(const QString &errorText, int status = 1)
    {
        return ScriptEnd{.status = status, .output = {}, .errorText = errorText};
    }
    static End hanging() { return ScriptEnd(); }
    static End refusing(const QString &message) { return std::unexpected(PlatformError{message}); }

    /// How the next scripts end, in their order.
    void answer(const End &end, int times = 1) { ends_.insert(ends_.end(), static_cast<size_t>(times), end); }
    /// How scripts end for which no answer is left.
    void setHandler(std::function<End(const QString &script)> handler) { handler_ = std::move(handler); }

    /// Scripts don't end until `letGo` is called, once for each.
    void hold() { holds_ = true; }
    /// Lets the oldest one end; false when none runs.
    bool letGo()
    {
        if (held_.empty())
            return false;
        const std::coroutine_handle<> next = held_.front();
        held_.pop_front();
        next.resume();
        return true;
    }

    /// The scripts since the last time.
    [[nodiscard]] QStringList takeScripts() { return std::exchange(scripts_, {}); }

    [[nodiscard]] QCoro::Task<End> run(QString script) override
    {
        scripts_.append(script);
        const End end = next(script);
        if (holds_)
            co_await Wait{held_};
        co_return end;
    }

private:
    struct Wait {
        std::deque<std::coroutine_handle<>> &waiting;

        [[nodiscard]] bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> script) { waiting.push_back(script); }
        void await_resume() const noexcept {}
    };

    End next(const QString &script)
    {
        if (ends_.empty())
            return handler_ ? handler_(script) : printing({});
        End end = ends_.front();
        ends_.pop_front();
        return end;
    }

    std::deque<End> ends_;
    std::function<End(const QString &script)> handler_;
    QStringList scripts_;
    std::deque<std::coroutine_handle<>> held_;
    bool holds_ = false;
};

} // namespace vantrel::test
