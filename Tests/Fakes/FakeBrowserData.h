#pragma once

#include "Platform/BrowserData.h"

#include <QHash>

namespace vantrel::test {

/// Data folders that a test names. Answers on any thread as long as no folder is set meanwhile.
class FakeBrowserData final : public BrowserData {
public:
    /// Makes the browser installed, with the folders in their order; a folder named twice counts once.
    void setFolders(const QString &bundleID, const QList<BrowserDataFolder> &folders)
    {
        QList<BrowserDataFolder> unique;
        for (const BrowserDataFolder &folder : folders) {
            if (!unique.contains(folder))
                unique.append(folder);
        }
        folders_.insert(bundleID, unique);
    }

    void setFolder(const QString &bundleID, const QString &path) { setFolders(bundleID, {{.path = path}}); }

    [[nodiscard]] QList<BrowserDataFolder> dataFolders(const QString &bundleID) const override
    {
        return folders_.value(bundleID);
    }

private:
    QHash<QString, QList<BrowserDataFolder>> folders_;
};

} // namespace vantrel::test
