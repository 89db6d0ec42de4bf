#pragma once

#include "Platform/PlatformError.h"
#include "Platform/SystemProfile.h"

#include <QCoroTask>
#include <QList>

#include <expected>

namespace vantrel {

/// The system's own index of what can be found with its search. The user's choice is handed back as the profile's id.
/// Main thread only.
class SearchIndex {
public:
    using Entry = SystemProfile;
    using Step = QCoro::Task<std::expected<void, PlatformError>>;

    virtual ~SearchIndex() = default;

    /// Removes all that was ever added.
    [[nodiscard]] virtual Step removeAll() = 0;

    /// Adds entries to those that are there, all with the priority 0.
    [[nodiscard]] virtual Step add(QList<Entry> entries) = 0;
};

} // namespace vantrel
