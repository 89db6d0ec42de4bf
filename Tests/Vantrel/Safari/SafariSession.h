#pragma once

#include "Tests/Fakes/FakeAlert.h"
#include "Tests/Fakes/FakeBrowserData.h"
#include "Tests/Fakes/FakeClock.h"
#include "Tests/Fakes/FakeLog.h"
#include "Tests/Fakes/FakeWorkspace.h"
#include "Tests/Vantrel/EventLoop.h"
#include "Tests/Vantrel/Safari/SceneBridge.h"
#include "Tests/VantrelKit/Samples.h"
#include "Tests/VantrelKit/TemporaryFolder.h"
#include "Vantrel/DiscoveryRuns.h"
#include "Vantrel/ProfileOpener.h"
#include "Vantrel/Safari/Automation.h"

#include <chrono>
#include <optional>

namespace vantrel::test {

/// The app's parts from the store to the scripts, with a Safari that the stand-in for osascript plays.
class SafariSession {
public:
    /// Scripts may take as long as they like to.
    SafariSession();

    /// Before anything is asked of Safari.
    void setScriptLimit(std::chrono::milliseconds limit) { limit_ = limit; }
    /// Where the languages of its menus are read.
    void setLanguages(const QUrl &appResources, const QUrl &frameworkResources);

    [[nodiscard]] Scene scene() const { return Scene::read(scenePath_); }
    void setScene(const Scene &scene) const { scene.write(scenePath_); }
    /// The scripts since the last time.
    [[nodiscard]] QStringList takeScripts() const;

    /// Finds Safari's profiles, as the settings do; the names that the store then has.
    QStringList find();
    /// Opens a profile that the store has, or one of that name that it doesn't have.
    void open(const QString &name, const QStringList &links = {});
    void openPrivate(const QStringList &links = {});

    [[nodiscard]] ProfileStore &store() { return store_; }
    [[nodiscard]] FakeLog &log() { return log_; }
    [[nodiscard]] const FakeAlert &alert() const { return alert_; }
    [[nodiscard]] FakeClock &clock() { return clock_; }

private:
    void start();
    void open(const Profile &profile, const QStringList &links);

    EventProgram program_;
    TemporaryFolder folder_;
    QString scenePath_ = folder_.path(QStringLiteral("scene"));
    std::chrono::milliseconds limit_ = std::chrono::seconds(60);
    FakeLog log_;
    FakeAlert alert_;
    FakeClock clock_;
    FakeWorkspace workspace_;
    FakeBrowserData data_;
    SceneRunningApplications running_{scenePath_};
    ProfileStore store_{folder_.path(QStringLiteral("profiles.json")), log_};
    std::optional<Safari::Languages> languages_;
    SafariPorts ports_;
    std::optional<Safari::Automation> automation_;
    std::optional<DiscoveryRuns> discovery_;
    std::optional<ProfileOpener> opener_;
};

} // namespace vantrel::test
