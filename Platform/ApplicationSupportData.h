#pragma once

#include "Platform/BrowserData.h"
#include "Platform/Workspace.h"

namespace vantrel {

/// Browsers' data in the folders that the catalogue names, below one folder, as on macOS.
class ApplicationSupportData final : public BrowserData {
public:
    /// `root` is that folder. The workspace says which browsers are installed and must outlive the object.
    ApplicationSupportData(QString root, const Workspace &workspace) : root_(std::move(root)), workspace_(workspace) {}

    [[nodiscard]] QList<BrowserDataFolder> dataFolders(const QString &bundleID) const override;

private:
    QString root_;
    const Workspace &workspace_;
};

} // namespace vantrel
