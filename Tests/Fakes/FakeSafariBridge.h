#pragma once

#include "Platform/SafariBridge.h"

#include <algorithm>
#include <utility>

namespace vantrel::test {

/// A Safari whose windows a test makes. What is asked of it that changes anything is kept: "activate", "tab 7",
/// "url 7 0 https://a.example/", "current 7 0".
class FakeSafariApplication final : public SafariApplication {
public:
    struct Window {
        qint64 id;
        QStringList tabs;
    };

    /// The front one first.
    QList<Window> windows;
    bool runs = true;
    /// Whether it starts when it is activated.
    bool starts = true;
    /// How many of the next questions stay unanswered; -1 for all.
    int silences = 0;
    bool hasTabs = true;
    /// How many of the next tabs can't be made.
    int refusedTabs = 0;

    [[nodiscard]] QStringList takeCalls() { return std::exchange(calls_, {}); }

    [[nodiscard]] QCoro::Task<> activate() override
    {
        calls_.append(QStringLiteral("activate"));
        runs = runs || starts;
        co_return;
    }

    [[nodiscard]] bool isRunning() const override { return runs; }

    [[nodiscard]] QCoro::Task<std::optional<QList<qint64>>> windowIDs() override
    {
        if (silences != 0) {
            silences -= silences > 0 ? 1 : 0;
            co_return std::nullopt;
        }
        QList<qint64> ids;
        for (const Window &window : std::as_const(windows))
            ids.append(window.id);
        co_return ids;
    }

    [[nodiscard]] QCoro::Task<std::optional<QStringList>> tabURLs(qint64 windowID) override
    {
        const Window *window = find(windowID);
        if (!hasTabs || !window)
            co_return std::nullopt;
        co_return window->tabs;
    }

    [[nodiscard]] QCoro::Task<std::optional<qsizetype>> addTab(qint64 windowID) override
    {
        Window *window = find(windowID);
        if (!window || (refusedTabs > 0 && refusedTabs-- > 0))
            co_return std::nullopt;
        calls_.append(QStringLiteral("tab %1").arg(windowID));
        window->tabs.append(QString());
        co_return window->tabs.size() - 1;
    }

    /// The tab shows its old address for as long as the new one loads.
    [[nodiscard]] QCoro::Task<> setURL(qint64 windowID, qsizetype tab, QString url) override
    {
        calls_.append(QStringLiteral("url %1 %2 ").arg(windowID).arg(tab) + url);
        co_return;
    }

    [[nodiscard]] QCoro::Task<> setCurrentTab(qint64 windowID, qsizetype tab) override
    {
        calls_.append(QStringLiteral("current %1 %2").arg(windowID).arg(tab));
        co_return;
    }

private:
    Window *find(qint64 id)
    {
        const auto window = std::ranges::find(windows, id, &Window::id);
        return window == windows.end() ? nullptr : &*window;
    }

    QStringList calls_;
};

/// A bridge to one Safari, the only application there is.
class FakeSafariBridge final : public SafariBridge {
public:
    [[nodiscard]] static QString bundleID() { return QStringLiteral("com.apple.Safari"); }
    [[nodiscard]] static QUrl url() { return QUrl::fromLocalFile(QStringLiteral("/Applications/Safari.app")); }

    [[nodiscard]] FakeSafariApplication &application() { return *application_; }
    [[nodiscard]] const std::shared_ptr<FakeSafariApplication> &shared() const { return application_; }

    void setConnects(bool connects) { connects_ = connects; }
    /// What `startHidden` does and answers for it.
    void setStart(std::function<std::expected<void, PlatformError>()> start) { start_ = std::move(start); }

    /// The identifiers and applications that were asked for.
    [[nodiscard]] const QStringList &connections() const { return connections_; }
    [[nodiscard]] const QList<QUrl> &starts() const { return starts_; }
    /// With what the latest connection was made.
    [[nodiscard]] const Settings &settings() const { return settings_; }

    [[nodiscard]] std::shared_ptr<SafariApplication> connect(const QString &identifier, Settings settings) override
    {
        connections_.append(identifier);
        settings_ = std::move(settings);
        return connects_ && identifier == bundleID() ? application_ : nullptr;
    }

    [[nodiscard]] QCoro::Task<std::expected<void, PlatformError>> startHidden(QUrl application) override
    {
        starts_.append(application);
        if (application != url())
            co_return std::unexpected(PlatformError{QStringLiteral("No application at ") + application.toString()});
        if (start_)
            co_return start_();
        application_->runs = true;
        co_return {};
    }

private:
    std::shared_ptr<FakeSafariApplication> application_ = std::make_shared<FakeSafariApplication>();
    bool connects_ = true;
    std::function<std::expected<void, PlatformError>()> start_;
    QStringList connections_;
    QList<QUrl> starts_;
    Settings settings_;
};

} // namespace vantrel::test
