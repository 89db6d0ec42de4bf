#pragma once

#include "Platform/ApplicationInstance.h"

#include <QObject>

#include <optional>
#include <utility>

namespace vantrel::test {

/// An instance that a test starts and asks.
class FakeApplicationInstance final : public ApplicationInstance {
public:
    /// What its processes share. Outlives them.
    class Session {
    public:
        /// The running instance answers no more.
        void silence() { answers_ = false; }

    private:
        friend class FakeApplicationInstance;

        FakeApplicationInstance *running_ = nullptr;
        bool answers_ = true;
    };

    explicit FakeApplicationInstance(Session &session) : session_(session) {}
    ~FakeApplicationInstance() override
    {
        if (session_.running_ == this)
            session_.running_ = nullptr;
    }
    Q_DISABLE_COPY_MOVE(FakeApplicationInstance)

    [[nodiscard]] std::expected<Role, PlatformError> start(const InstanceRequest &first, Handler handler) override
    {
        first_ = first;
        if (!session_.running_) {
            handler_ = std::move(handler);
            session_.running_ = this;
            return Role::only;
        }
        if (!session_.answers_)
            return std::unexpected(PlatformError{QStringLiteral("The instance doesn't answer.")});
        session_.running_->ask(first);
        return Role::second;
    }

    /// With what it was started; none when it wasn't.
    [[nodiscard]] const std::optional<InstanceRequest> &first() const { return first_; }

    /// Somebody asks the started instance for something. It arrives with the next events.
    void ask(const InstanceRequest &request)
    {
        QMetaObject::invokeMethod(&context_, [this, request] { handler_(request); }, Qt::QueuedConnection);
    }

private:
    Session &session_;
    std::optional<InstanceRequest> first_;
    Handler handler_;
    /// What is on its way when the instance goes doesn't arrive.
    QObject context_;
};

} // namespace vantrel::test
