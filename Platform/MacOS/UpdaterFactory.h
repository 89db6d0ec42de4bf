#pragma once

#include "Platform/Updater.h"

#include <memory>

namespace vantrel {

/// Null in a build without the framework for updates.
[[nodiscard]] std::unique_ptr<Updater> makeUpdater();

} // namespace vantrel
