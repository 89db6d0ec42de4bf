#pragma once

#include "Platform/Linux/Environment.h"

#include <QStringList>

#include <functional>

namespace vantrel {

/// Whether a path is there; links are followed.
using PathExists = std::function<bool(const QString &path)>;

/// The folders in which a native Firefox may keep "profiles.ini", the one that it uses now first. The rule is that of
/// Firefox's `nsXREDirProvider::GetLegacyOrXDGHomePath`: an existing old folder is used, even an empty one. Profiles
/// made under other circumstances lie in the others and can still be opened.
[[nodiscard]] QStringList firefoxRoots(const Environment &environment, const PathExists &exists);

/// The same for Zen, which names its folders otherwise.
[[nodiscard]] QStringList zenRoots(const Environment &environment, const PathExists &exists);

} // namespace vantrel
