#pragma once

#include "Platform/Linux/DesktopEntry.h"
#include "Platform/PlatformError.h"

#include <QStringList>

#include <expected>

namespace vantrel {

/// The words of an Exec value, its quotes taken off and its field codes left as they are. Fails when the quotes don't
/// match.
[[nodiscard]] std::expected<QStringList, PlatformError> execWords(const QString &exec);

/// The program and arguments that start the entry's application with arguments of ours in the place of its files and
/// links: links are http, https and file URLs. `home` is the user's home, from which a Flatpak's own home is told
/// apart.
[[nodiscard]] std::expected<QStringList, PlatformError>
expandedCommandLine(const DesktopEntry &entry, const QStringList &arguments, const QString &home);

/// A path as a Flatpak application sees it that keeps hidden folders of its home outside of the real one ("--persist"):
/// `~/.var/app/ID/.mozilla/…` is `~/.mozilla/…` to it. Its config, data and cache folders have the same path inside.
[[nodiscard]] QString pathInsideFlatpak(const QString &path, const QString &flatpakID, const QString &home);

} // namespace vantrel
