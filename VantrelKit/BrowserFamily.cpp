#include "VantrelKit/BrowserFamily.h"

namespace vantrel {

QString rawValue(BrowserFamily family)
{
    switch (family) {
    case BrowserFamily::safari: return QStringLiteral("safari");
    case BrowserFamily::chromium: return QStringLiteral("chromium");
    case BrowserFamily::firefox: return QStringLiteral("firefox");
    }
    Q_UNREACHABLE();
}

std::optional<BrowserFamily> browserFamily(const QString &rawValue)
{
    for (const BrowserFamily family : allBrowserFamilies) {
        if (vantrel::rawValue(family) == rawValue)
            return family;
    }
    return std::nullopt;
}

} // namespace vantrel
