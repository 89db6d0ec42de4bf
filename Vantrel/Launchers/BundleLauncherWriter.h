#pragma once

#include "Platform/CodeSigner.h"
#include "Platform/FileSystem.h"
#include "Platform/LauncherWriter.h"

namespace vantrel {

/// Launchers as application bundles of macOS: a copy of a program that is part of the app, a property list that says
/// which link it opens, and an icon. All but the signing can be done on any system.
class BundleLauncherWriter final : public LauncherWriter {
public:
    /// What it works with; the references must outlive it.
    struct Environment {
        FileSystem &files;
        CodeSigner &signer;
        /// The program that is copied into each bundle.
        QString stub;
        QString home;
        QString temporaryFolder;
        /// That of the app.
        QString version;
    };

    explicit BundleLauncherWriter(Environment environment) : environment_(std::move(environment)) {}

    [[nodiscard]] SavePanel::Panel panel(const QString &title) const override;
    [[nodiscard]] QString placeIn(const std::optional<QString> &folder, const QString &profileID,
                                  const QString &title) const override;
    /// What was made is left in the temporary folder when a later step fails.
    [[nodiscard]] QCoro::Task<std::expected<QUrl, PlatformError>> write(Launcher launcher, QString place) override;
    [[nodiscard]] QCoro::Task<std::expected<void, PlatformError>> remove(QString profileID, QString place) override;

private:
    [[nodiscard]] FileSystem::Result build(const Launcher &launcher, const QString &bundle) const;

    Environment environment_;
};

} // namespace vantrel
