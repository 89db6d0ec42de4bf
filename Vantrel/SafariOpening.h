#pragma once

#include "Platform/PlatformError.h"
#include "VantrelKit/Browser.h"

#include <QCoroTask>
#include <QUrl>

#include <expected>

namespace vantrel {

/// Opens what can only be reached through Safari's own menus. Main thread only.
class SafariOpening {
public:
    using Step = QCoro::Task<std::expected<void, PlatformError>>;

    virtual ~SafariOpening() = default;

    /// `index` is the profile's place in Safari's menu, -1 when it isn't known.
    [[nodiscard]] virtual Step openProfile(QString name, qint64 index, Browser browser, QList<QUrl> links) = 0;
    [[nodiscard]] virtual Step openPrivateWindow(Browser browser, QList<QUrl> links) = 0;
};

} // namespace vantrel
