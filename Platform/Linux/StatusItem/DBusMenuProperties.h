#pragma once

#include "Platform/Linux/StatusItem/DBusMenuTypes.h"
#include "Platform/Menu.h"

namespace vantrel {

/// The title as a property "label": every character of a title stands for itself, also `_`, which would otherwise
/// underline the next one; what would break the line becomes a blank.
[[nodiscard]] QString dbusMenuLabel(const QString &title);

/// The keys as a property "shortcut".
[[nodiscard]] DBusMenuShortcut dbusMenuShortcut(const QKeySequence &sequence);

/// What a host gets to know of a row. Properties that have their default value are left out.
[[nodiscard]] QVariantMap dbusMenuProperties(const MenuItem &item);

} // namespace vantrel
