#pragma once

#include <QString>

/// Plain paths as text: no file system is asked, nothing is resolved.
namespace vantrel {

/// `relative` below `folder`, with one slash between them and none at the end.
[[nodiscard]] QString joinedPath(const QString &folder, const QString &relative);

/// What follows the last slash, a slash at the end not counted; the whole of a path without one.
[[nodiscard]] QString lastPathComponent(const QString &path);

} // namespace vantrel
