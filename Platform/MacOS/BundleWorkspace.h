#pragma once

#include "Platform/Workspace.h"

namespace vantrel {

/// Applications by their bundles, as Launch Services knows them. Only those of the catalogue are looked for, whose
/// identifiers are compared exactly, as Launch Services does not.
class BundleWorkspace final : public Workspace {
public:
    [[nodiscard]] std::optional<Application> applicationWithBundleIdentifier(const QString &bundleID) const override;
    [[nodiscard]] QStringList searchedNames(const QString &bundleID) const override;
    [[nodiscard]] std::expected<QStringList, PlatformError> commandLine(const QUrl &application,
                                                                        const QStringList &arguments) const override;
    [[nodiscard]] QCoro::Task<std::expected<void, PlatformError>> openApplication(QUrl application,
                                                                                  QStringList arguments) override;
};

} // namespace vantrel
