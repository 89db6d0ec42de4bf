#pragma once

#include "Platform/Linux/Environment.h"

namespace vantrel {

/// Whether an icon of that name is installed for all themes, that is in "hicolor", as an application's or a status's.
/// Only looks for files: reading a theme takes longer than all else until the symbol shows.
[[nodiscard]] bool isThemeIcon(const QString &name, const Environment &environment);

} // namespace vantrel
