#pragma once

#include <QList>
#include <QString>

#include <cstdint>

namespace vantrel {

/// A folder in which a browser keeps profiles.
struct BrowserDataFolder {
    enum class Layout : std::uint8_t {
        /// Profiles are folders in it, or are listed in it.
        manyProfiles,
        /// It is itself the one profile of a Chromium browser, as with old versions of Opera.
        singleProfile,
    };

    QString path;
    Layout layout = Layout::manyProfiles;

    friend bool operator==(const BrowserDataFolder &, const BrowserDataFolder &) = default;
};

/// Where browsers keep their data. Any thread.
class BrowserData {
public:
    virtual ~BrowserData() = default;

    /// The folders of the installed browser, the one that it uses now first, no folder twice. They need not exist.
    /// Empty for browsers that keep no data that can be read, or that aren't installed.
    [[nodiscard]] virtual QList<BrowserDataFolder> dataFolders(const QString &bundleID) const = 0;
};

} // namespace vantrel
