#pragma once

#include <QString>

namespace vantrel {

/// The first character of a display name as its reader sees it, in upper case: a letter with its marks, a whole emoji,
/// a flag. It can become two letters ("ß" becomes "SS"). "?" for a name without anything but white space.
[[nodiscard]] QString profileInitial(const QString &displayName);

} // namespace vantrel
