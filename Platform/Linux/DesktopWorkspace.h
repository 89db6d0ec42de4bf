#pragma once

#include "Platform/ActivationSource.h"
#include "Platform/Linux/InstallationFinder.h"
#include "Platform/Workspace.h"

#include <QProcessEnvironment>

namespace vantrel {

/// Applications by their desktop entries.
class DesktopWorkspace final : public Workspace {
public:
    /// `variables` is what started programs get as their environment, with what `activation` has to add, which must
    /// outlive the workspace.
    DesktopWorkspace(InstallationFinder finder, const QProcessEnvironment &variables, ActivationSource &activation);

    [[nodiscard]] std::optional<Application> applicationWithBundleIdentifier(const QString &bundleID) const override;
    [[nodiscard]] QStringList searchedNames(const QString &bundleID) const override;
    [[nodiscard]] std::expected<QStringList, PlatformError> commandLine(const QUrl &application,
                                                                        const QStringList &arguments) const override;
    [[nodiscard]] QCoro::Task<std::expected<void, PlatformError>> openApplication(QUrl application,
                                                                                  QStringList arguments) override;

private:
    InstallationFinder finder_;
    QProcessEnvironment variables_;
    ActivationSource &activation_;
};

} // namespace vantrel
