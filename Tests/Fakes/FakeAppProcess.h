#pragma once

#include "Platform/AppProcess.h"

#include <QStringList>

namespace vantrel::test {

/// The app as a test plays it. What was asked of it is kept: "send open A B", "start action menu", "become".
class FakeAppProcess final : public AppProcess {
public:
    void setRunning(bool isRunning) { running_ = isRunning; }
    /// It runs and doesn't answer.
    void setHanging(const QString &message) { running_ = std::unexpected(PlatformError{message}); }
    /// It can't be started.
    void refuse(const QString &message) { started_ = std::unexpected(PlatformError{message}); }

    [[nodiscard]] QStringList takeCalls() { return std::exchange(calls_, {}); }

    [[nodiscard]] std::expected<bool, PlatformError> send(InstanceRequest request) override
    {
        calls_.append(QStringLiteral("send ") + described(request));
        return running_;
    }

    [[nodiscard]] std::expected<void, PlatformError> start(const InstanceRequest &request) override
    {
        calls_.append(QStringLiteral("start ") + described(request));
        return started_;
    }

    [[nodiscard]] PlatformError become() override
    {
        calls_.append(QStringLiteral("become"));
        return started_ ? PlatformError{QStringLiteral("This process goes on.")} : started_.error();
    }

private:
    static QString described(const InstanceRequest &request)
    {
        switch (request.kind) {
        case InstanceRequest::Kind::activate: return QStringLiteral("activate");
        case InstanceRequest::Kind::open: return QStringLiteral("open ") + request.links.join(u' ');
        case InstanceRequest::Kind::action: return QStringLiteral("action ") + request.action;
        }
        Q_UNREACHABLE();
    }

    std::expected<bool, PlatformError> running_ = false;
    std::expected<void, PlatformError> started_;
    QStringList calls_;
};

} // namespace vantrel::test
