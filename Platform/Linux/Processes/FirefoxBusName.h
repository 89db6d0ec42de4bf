#pragma once

#include <QString>
#include <QStringList>

/// The name that a Firefox owns on the session bus as long as it runs with a profile: "org.mozilla.firefox." and the
/// profile folder's path in Base64, as Mozilla's `nsDBusRemoteServer` makes it.
namespace vantrel {

/// Below which names those of the known browsers are. The part that follows differs between editions.
[[nodiscard]] const QStringList &firefoxBusNamespaces();

[[nodiscard]] bool isFirefoxBusName(const QString &name);

/// Whether the name is that of a Firefox which knows the profile folder by this path.
[[nodiscard]] bool isBusNameOfPath(const QString &name, const QString &path);

/// By which paths a Firefox may know the profile folder: as it is, and as a Flatpak with a home of its own sees it.
[[nodiscard]] QStringList pathsOfProfile(const QString &profileFolder);

} // namespace vantrel
