#pragma once

#include "Platform/BrowserData.h"
#include "Platform/Linux/InstallationFinder.h"

namespace vantrel {

/// The data folders of installed browsers, below the home and configuration folders or inside a sandbox's.
class XdgBrowserData final : public BrowserData {
public:
    explicit XdgBrowserData(InstallationFinder finder) : finder_(std::move(finder)) {}

    [[nodiscard]] QList<BrowserDataFolder> dataFolders(const QString &bundleID) const override;

private:
    InstallationFinder finder_;
};

} // namespace vantrel
