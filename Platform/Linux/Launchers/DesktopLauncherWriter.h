#pragma once

#include "Platform/FileSystem.h"
#include "Platform/LauncherWriter.h"

namespace vantrel {

/// Launchers as desktop entries, with pictures in the user's icon theme folder.
class DesktopLauncherWriter final : public LauncherWriter {
public:
    /// `dataHome` is the user's data folder; `program` is the path of the command that the entries start. `files` must
    /// outlive the writer.
    DesktopLauncherWriter(FileSystem &files, const QString &dataHome, QString program);

    [[nodiscard]] SavePanel::Panel panel(const QString &title) const override;
    [[nodiscard]] QString placeIn(const std::optional<QString> &folder, const QString &profileID,
                                  const QString &title) const override;
    [[nodiscard]] QCoro::Task<std::expected<QUrl, PlatformError>> write(Launcher launcher, QString place) override;
    [[nodiscard]] QCoro::Task<std::expected<void, PlatformError>> remove(QString profileID, QString place) override;

private:
    [[nodiscard]] FileSystem::Result writeEntry(const Launcher &launcher, const QString &icon, const QString &place);
    void removeIcon(const QString &profileID, const QString &icon);

    FileSystem &files_;
    QString applications_;
    QString theme_;
    QString program_;
};

} // namespace vantrel
