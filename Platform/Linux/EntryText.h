#pragma once

#include <QString>
#include <QStringList>

namespace vantrel {

/// A command, the program first, as the Exec key of a desktop entry takes it (freedesktop.org Desktop Entry
/// Specification).
[[nodiscard]] QString execLine(const QStringList &command);

/// One argument of it: quoted, its percent signs doubled.
[[nodiscard]] QString execWord(const QString &argument);

/// A value as a key file takes it. What would end the line, and a blank that it begins with, are written as escapes.
[[nodiscard]] QString keyFileValue(const QString &value);

/// A line of a key file, with its end.
[[nodiscard]] QString keyFileLine(QLatin1StringView key, const QString &value);

} // namespace vantrel
