#pragma once

#include <QString>

namespace vantrel {

/// What the user is told when a link names a profile that isn't there.
[[nodiscard]] QString unknownProfileMessage(const QString &profileName);

} // namespace vantrel
