#pragma once

#include "Platform/Workspace.h"
#include "VantrelKit/KnownBrowsers.h"

#include <QHash>

#include <algorithm>
#include <coroutine>
#include <deque>

namespace vantrel::test {

/// Applications that exist for a test alone. Nothing is started: what would have been is kept.
class FakeWorkspace final : public Workspace {
public:
    /// A start that was asked for.
    struct Opening {
        QUrl application;
        QStringList arguments;

        friend bool operator==(const Opening &, const Opening &) = default;
    };

    /// The application's URL.
    QUrl install(const QString &bundleID, const QString &name)
    {
        const QUrl url = QUrl::fromLocalFile(QStringLiteral("/applications/") + bundleID);
        applications_.insert(bundleID, {url, name});
        return url;
    }

    void uninstall(const QString &bundleID) { applications_.remove(bundleID); }

    /// Every start of the application fails from now on.
    void refuse(const QString &bundleID, const QString &message) { refusals_.insert(bundleID, message); }

    /// The start with this number fails, counted from 1 over all applications.
    void refuseOpening(qsizetype number, const QString &message) { refusedOpenings_.insert(number, message); }

    /// Starts aren't taken on until `takeOn` is called, once for each.
    void holdOpenings() { holds_ = true; }

    /// Lets the oldest of the held starts go on; false when there is none.
    bool takeOn()
    {
        if (held_.empty())
            return false;
        const std::coroutine_handle<> next = held_.front();
        held_.pop_front();
        next.resume();
        return true;
    }

    /// Every start that was asked for in its order, also those that were refused.
    [[nodiscard]] const QList<Opening> &openings() const { return openings_; }

    [[nodiscard]] std::optional<Application> applicationWithBundleIdentifier(const QString &bundleID) const override
    {
        const auto found = applications_.constFind(bundleID);
        return found == applications_.constEnd() ? std::nullopt : std::optional(*found);
    }

    /// Safari exists only where a test installs it.
    [[nodiscard]] QStringList searchedNames(const QString &bundleID) const override
    {
        const auto family = KnownBrowsers::family(bundleID);
        const bool exists = family && (family != BrowserFamily::safari || applications_.contains(bundleID));
        return exists ? QStringList(bundleID + QStringLiteral(".application")) : QStringList();
    }

    [[nodiscard]] std::expected<QStringList, PlatformError> commandLine(const QUrl &application,
                                                                        const QStringList &arguments) const override
    {
        if (bundleIdentifier(application).isEmpty())
            return std::unexpected(PlatformError{QStringLiteral("No application at ") + application.toString()});
        return QStringList(application.path() + QStringLiteral("/program")) + arguments;
    }

    [[nodiscard]] QCoro::Task<std::expected<void, PlatformError>> openApplication(QUrl application,
                                                                                  QStringList arguments) override
    {
        openings_.append({application, arguments});
        const auto refusal = refusalOf(application, openings_.size());
        co_await Turn{holds_ ? &held_ : nullptr};
        if (refusal)
            co_return std::unexpected(*refusal);
        co_return {};
    }

private:
    /// The wait of a start until its turn comes.
    struct Turn {
        /// Null when it has come.
        std::deque<std::coroutine_handle<>> *waiting;

        [[nodiscard]] bool await_ready() const noexcept { return waiting == nullptr; }
        void await_suspend(std::coroutine_handle<> start) const { waiting->push_back(start); }
        void await_resume() const noexcept {}
    };

    [[nodiscard]] QString bundleIdentifier(const QUrl &application) const
    {
        for (auto entry = applications_.constBegin(); entry != applications_.constEnd(); ++entry) {
            if (entry->url == application)
                return entry.key();
        }
        return {};
    }

    [[nodiscard]] std::optional<PlatformError> refusalOf(const QUrl &application, qsizetype number) const
    {
        if (const auto line = commandLine(application, {}); !line)
            return line.error();
        const QString message = refusedOpenings_.value(number, refusals_.value(bundleIdentifier(application)));
        return message.isEmpty() ? std::nullopt : std::optional(PlatformError{message});
    }

    QHash<QString, Application> applications_;
    QHash<QString, QString> refusals_;
    QHash<qsizetype, QString> refusedOpenings_;
    QList<Opening> openings_;
    std::deque<std::coroutine_handle<>> held_;
    bool holds_ = false;
};

} // namespace vantrel::test
