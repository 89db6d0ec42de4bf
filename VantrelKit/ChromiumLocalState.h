#pragma once

#include <QHash>
#include <QString>

#include <optional>

namespace vantrel {

/// What a Chromium browser's file "Local State" says about profiles: its member profile.info_cache.
struct ChromiumLocalState {
    struct Info {
        std::optional<QString> name;
        /// A path below the data folder, or an address of a built-in picture.
        std::optional<QString> avatarIcon;

        friend bool operator==(const Info &, const Info &) = default;
    };

    /// By the profile folder's name; empty when the file has no such member.
    QHash<QString, Info> infoCache;

    /// None when the file can't be read, isn't JSON or has another shape.
    [[nodiscard]] static std::optional<ChromiumLocalState> read(const QString &path);

    friend bool operator==(const ChromiumLocalState &, const ChromiumLocalState &) = default;
};

} // namespace vantrel
