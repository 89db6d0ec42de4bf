#pragma once

#include "Platform/Linux/DesktopEntries.h"
#include "Platform/Linux/Environment.h"
#include "Platform/Linux/Installation.h"

#include <QStringList>

#include <memory>
#include <optional>

namespace vantrel {

/// Finds installed browsers by their desktop entries, always as they are now. Copies share what they have read. Any
/// thread.
class InstallationFinder {
public:
    explicit InstallationFinder(Environment environment) : environment_(std::move(environment)) {}

    /// None when the browser isn't installed.
    [[nodiscard]] std::optional<Installation> find(const QString &bundleID) const;

    /// The names of the desktop entry files that are looked for.
    [[nodiscard]] static QStringList entryNames(const QString &bundleID);

    [[nodiscard]] const Environment &environment() const { return environment_; }
    [[nodiscard]] DesktopEntries &entries() const { return *entries_; }

private:
    /// Folders with desktop entries, the weightiest first.
    [[nodiscard]] QStringList applicationFolders() const;
    /// True for an installation whose profiles are those of another browser that is installed, too.
    [[nodiscard]] bool yields(const Installation &installation) const;

    Environment environment_;
    std::shared_ptr<DesktopEntries> entries_ = std::make_shared<DesktopEntries>();
};

} // namespace vantrel
