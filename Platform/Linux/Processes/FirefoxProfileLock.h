#pragma once

#include "Platform/Linux/ProcessHandle.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace vantrel {

/// Every folder that may be a profile's of a Firefox browser: those in the data folder and those that its
/// "profiles.ini" lists elsewhere. Blocks for the time of reading two folders.
[[nodiscard]] QStringList firefoxProfileFolders(const QString &dataFolder);

/// The process that runs with the profile: Firefox locks the file ".parentlock" while it does, in sandboxes too. None
/// also for processes that this one can't see.
[[nodiscard]] std::optional<ProcessHandle> profileLockHolder(const QString &profileFolder);

} // namespace vantrel
