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

std::optional<BrowserFamily> browserFamily(const QString &text)
{
    for (const BrowserFamily family : allBrowserFamilies) {
        if (rawValue(family) == text)
            return family;
    }
    return std::nullopt;
}

} // namespace vantrel
