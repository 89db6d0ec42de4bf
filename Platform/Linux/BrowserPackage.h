#pragma once

#include <QList>
#include <QString>

#include <array>
#include <cstdint>
#include <string_view>

namespace vantrel {

/// How an application came onto the machine.
enum class Packaging : std::uint8_t { native, flatpak, snap };

/// One way in which a browser is packaged for Linux.
struct BrowserPackage {
    std::string_view bundleID;
    Packaging packaging = Packaging::native;
    /// The Flatpak application ID or the Snap name; empty for native packages.
    std::string_view sandboxID;
    /// Names of desktop entry files, the likeliest first; unused ones are empty.
    std::array<std::string_view, 3> entries;
    /// Where its data may be, the likeliest first; unused ones are empty. Relative to the configuration folder
    /// (native), to
    /// `~/.var/app/ID` (Flatpak) or to `~/snap/NAME` (Snap). Native Firefoxes have none: see `FirefoxRoots`.
    std::array<std::string_view, 2> dataFolders;
    /// The browser that alone is shown when both are installed and use one data folder; empty for none.
    std::string_view yieldsTo = {};

    /// The packages of a browser: native, Flatpak, Snap. Empty for browsers that don't exist for Linux.
    [[nodiscard]] static QList<const BrowserPackage *> ofBrowser(const QString &bundleID);
};

/// The fixed text of a table as Qt's text.
[[nodiscard]] inline QString text(std::string_view view)
{
    return QString::fromLatin1(view.data(), static_cast<qsizetype>(view.size()));
}

} // namespace vantrel
