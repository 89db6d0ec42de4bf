#include "Platform/Linux/XdgBrowserData.h"

namespace vantrel {

QList<BrowserDataFolder> XdgBrowserData::dataFolders(const QString &bundleID) const
{
    const auto installation = finder_.find(bundleID);
    return installation ? installation->dataFolders : QList<BrowserDataFolder>();
}

} // namespace vantrel
