#pragma once

#include "VantrelKit/BrowserFamily.h"

#include <QStringList>

#include <optional>

namespace vantrel {

/// The fixed catalogue of the browsers that Vantrel works with, by macOS bundle identifier, which is a browser's
/// identity on every system. Identifiers are compared exactly. Any thread.
class KnownBrowsers {
public:
    KnownBrowsers() = delete;

    /// Every known identifier: Safari's, then Chromium's sorted, then Firefox's sorted.
    [[nodiscard]] static const QStringList &all();

    [[nodiscard]] static std::optional<BrowserFamily> family(const QString &bundleID);

    /// Where the browser keeps its data on macOS, relative to `~/Library/Application Support`; none for Safari.
    [[nodiscard]] static std::optional<QString> dataFolder(const QString &bundleID);

    /// True for every channel of Edge.
    [[nodiscard]] static bool isEdge(const QString &bundleID);
};

} // namespace vantrel
