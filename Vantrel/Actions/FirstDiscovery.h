#pragma once

#include "Vantrel/Actions/ProfileTitles.h"
#include "Vantrel/DiscoveryRuns.h"

#include <QCoroTask>

namespace vantrel {

/// Starts the discovery, and is done when the store has something to answer from. All must outlive the task.
QCoro::Task<> filledStore(const ProfileStore &store, DiscoveryRuns &discovery);

/// Starts the discovery, and is done when the profile is known or no browser is being read. All must outlive the task.
QCoro::Task<> searchedFor(QString profileID, ProfileTitles &titles, DiscoveryRuns &discovery);

} // namespace vantrel
