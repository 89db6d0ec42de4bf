#pragma once

#include "Platform/Updater.h"

#include <utility>

namespace vantrel::test {

/// Updates as a test plays them.
class FakeUpdater final : public Updater {
public:
    void setCanCheckForUpdates(bool canCheck)
    {
        canCheck_ = canCheck;
        if (changed_)
            changed_(canCheck);
    }

    [[nodiscard]] int checks() const { return checks_; }

    [[nodiscard]] bool canCheckForUpdates() const override { return canCheck_; }
    void observeCanCheckForUpdates(std::function<void(bool)> changed) override
    {
        changed_ = std::move(changed);
        changed_(canCheck_);
    }
    void checkForUpdates() override { ++checks_; }
    [[nodiscard]] bool automaticallyChecksForUpdates() const override { return isAutomatic_; }
    void setAutomaticallyChecksForUpdates(bool checks) override { isAutomatic_ = checks; }

private:
    std::function<void(bool)> changed_;
    bool canCheck_ = false;
    bool isAutomatic_ = false;
    int checks_ = 0;
};

} // namespace vantrel::test
