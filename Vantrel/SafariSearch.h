#pragma once

#include "Platform/PlatformError.h"
#include "VantrelKit/Browser.h"
#include "VantrelKit/ProfileTarget.h"

#include <QCoroTask>
#include <QList>

#include <expected>

namespace vantrel {

/// Finds the profiles that only Safari's own menu lists. Main thread only.
class SafariSearch {
public:
    /// The profiles in the menu's order, or why there are none.
    using Result = std::expected<QList<ProfileTarget::SafariProfile>, PlatformError>;

    virtual ~SafariSearch() = default;

    /// Starts Safari if need be, without showing it.
    [[nodiscard]] virtual QCoro::Task<Result> findProfiles(Browser browser) = 0;
};

} // namespace vantrel
