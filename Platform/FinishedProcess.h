#pragma once

#include "Platform/PlatformError.h"

#include <QCoroTask>
#include <QStringList>

#include <expected>

namespace vantrel {

/// Runs a program to its end, without anything to read. Fails when it can't be started, crashes, or ends with another
/// status than 0: with what it wrote to standard error, else with words of our own. Main thread only.
[[nodiscard]] QCoro::Task<std::expected<void, PlatformError>> runToEnd(QString program, QStringList arguments);

} // namespace vantrel
