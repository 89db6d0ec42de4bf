#pragma once

#include "Platform/RunningApplications.h"
#include "Platform/SafariBridge.h"
#include "Tests/Vantrel/Safari/StandIn/Scene.h"

namespace vantrel::test {

/// The scripting bridge to the Safari of a scene.
class SceneApplication final : public SafariApplication {
public:
    explicit SceneApplication(QString path) : path_(std::move(path)) {}

    [[nodiscard]] QCoro::Task<> activate() override
    {
        Scene scene = Scene::read(path_);
        scene.start();
        scene.isInFront = true;
        scene.write(path_);
        co_return;
    }

    [[nodiscard]] bool isRunning() const override { return Scene::read(path_).isRunning; }

    [[nodiscard]] QCoro::Task<std::optional<QList<qint64>>> windowIDs() override
    {
        Scene scene = Scene::read(path_);
        scene.wait();
        scene.write(path_);
        QList<qint64> ids;
        for (const Scene::Window &window : std::as_const(scene.windows))
            ids.append(window.id);
        co_return ids;
    }

    [[nodiscard]] QCoro::Task<std::optional<QStringList>> tabURLs(qint64 windowID) override
    {
        Scene scene = Scene::read(path_);
        const Scene::Window *window = scene.window(windowID);
        if (!window)
            co_return std::nullopt;
        co_return window->tabs;
    }

    [[nodiscard]] QCoro::Task<std::optional<qsizetype>> addTab(qint64 windowID) override
    {
        Scene scene = Scene::read(path_);
        Scene::Window *window = scene.window(windowID);
        if (!window)
            co_return std::nullopt;
        window->tabs.append(QString());
        scene.write(path_);
        co_return window->tabs.size() - 1;
    }

    [[nodiscard]] QCoro::Task<> setURL(qint64 windowID, qsizetype tab, QString url) override
    {
        Scene scene = Scene::read(path_);
        if (Scene::Window *window = scene.window(windowID))
            window->tabs[tab] = url;
        scene.write(path_);
        co_return;
    }

    [[nodiscard]] QCoro::Task<> setCurrentTab(qint64 windowID, qsizetype tab) override
    {
        Scene scene = Scene::read(path_);
        if (Scene::Window *window = scene.window(windowID))
            window->currentTab = tab;
        scene.write(path_);
        co_return;
    }

private:
    QString path_;
};

class SceneBridge final : public SafariBridge {
public:
    explicit SceneBridge(QString path) : path_(std::move(path)) {}

    [[nodiscard]] std::shared_ptr<SafariApplication> connect(const QString & /*bundleID*/,
                                                             Settings /*settings*/) override
    {
        return std::make_shared<SceneApplication>(path_);
    }

    [[nodiscard]] QCoro::Task<std::expected<void, PlatformError>> startHidden(QUrl /*application*/) override
    {
        Scene scene = Scene::read(path_);
        scene.start();
        scene.write(path_);
        co_return {};
    }

private:
    QString path_;
};

/// Whether the Safari of a scene runs.
class SceneRunningApplications final : public RunningApplications {
public:
    explicit SceneRunningApplications(QString path) : path_(std::move(path)) {}

    [[nodiscard]] bool isRunning(const QString & /*bundleID*/) const override { return Scene::read(path_).isRunning; }
    void watch(const QStringList & /*bundleIDs*/, Terminated /*terminated*/) override {}

private:
    QString path_;
};

} // namespace vantrel::test
