#pragma once

#include "VantrelKit/BrowserFamily.h"

#include <QList>
#include <QUrl>

namespace vantrel {

/// A browser that is installed. Its identity is `bundleID`.
struct Browser {
    QString bundleID;
    /// The name that people know it by.
    QString name;
    /// Where the application was found: its bundle on macOS, its desktop entry on Linux.
    QUrl url;
    BrowserFamily family = BrowserFamily::chromium;

    friend bool operator==(const Browser &, const Browser &) = default;
};

[[nodiscard]] size_t qHash(const Browser &browser, size_t seed = 0) noexcept;

/// What the browser itself calls its private window, in the user's language.
[[nodiscard]] QString privateWindowName(const QString &bundleID);

/// The name of the application at a location: its last path component without the extension.
[[nodiscard]] QString applicationName(const QUrl &application);

/// Safari first, then by name as people order names: without regard to case, numbers by their value. Browsers whose
/// names are equal by that rule keep their order.
[[nodiscard]] QList<Browser> sortedForDisplay(QList<Browser> browsers);

} // namespace vantrel
