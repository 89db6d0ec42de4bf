#pragma once

#include <QString>

#include <optional>

namespace vantrel {

/// What a Chromium profile's file "Preferences" says about the profile.
struct ChromiumPreferences {
    /// Its member profile.name.
    std::optional<QString> name;

    /// None when the file can't be read, isn't JSON or has another shape.
    [[nodiscard]] static std::optional<ChromiumPreferences> read(const QString &path);

    friend bool operator==(const ChromiumPreferences &, const ChromiumPreferences &) = default;
};

} // namespace vantrel
