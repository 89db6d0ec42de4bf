#pragma once

#include <QString>

/// Extended attributes of files, whose calls each system has in a form of its own.
namespace vantrel::test {

/// False when the file system has none.
[[nodiscard]] bool setAttribute(const QString &path, const char *name);

[[nodiscard]] bool hasAttribute(const QString &path, const char *name);

} // namespace vantrel::test
