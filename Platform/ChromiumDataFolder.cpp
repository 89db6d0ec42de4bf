#include "Platform/ChromiumDataFolder.h"

#include "VantrelKit/Paths.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace vantrel {

BrowserDataFolder chromiumDataFolder(const QString &bundleID, const QString &path)
{
    using Layout = BrowserDataFolder::Layout;
    // Opera kept the files of its only profile in the data folder itself before it had profiles.
    const bool isOpera = bundleID.startsWith("com.operasoftware."_L1);
    const bool isSingle = isOpera && !QFileInfo::exists(joinedPath(path, u"Default/Preferences"_s)) &&
                          QFileInfo::exists(joinedPath(path, u"Preferences"_s));
    return {path, isSingle ? Layout::singleProfile : Layout::manyProfiles};
}

} // namespace vantrel
