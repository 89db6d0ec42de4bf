#pragma once

#include "Platform/Updater.h"

#include <QtGlobal>

#include <memory>

namespace vantrel {

/// Updates by the framework "Sparkle", which starts to look for them when it is first used here.
class SparkleUpdater final : public Updater {
public:
    SparkleUpdater();
    ~SparkleUpdater() override;
    Q_DISABLE_COPY_MOVE(SparkleUpdater)

    [[nodiscard]] bool canCheckForUpdates() const override;
    void observeCanCheckForUpdates(std::function<void(bool canCheck)> changed) override;
    void checkForUpdates() override;
    [[nodiscard]] bool automaticallyChecksForUpdates() const override;
    void setAutomaticallyChecksForUpdates(bool checks) override;

private:
    struct Native;
    std::unique_ptr<Native> native_;
};

} // namespace vantrel
