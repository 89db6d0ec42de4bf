#pragma once

#include "Platform/ApplicationIcons.h"
#include "Platform/Linux/Environment.h"

namespace vantrel {

/// The icons that desktop entries name: files, or icons of the theme that all others fall back to, "hicolor", in which
/// applications install theirs.
class DesktopApplicationIcons final : public ApplicationIcons {
public:
    explicit DesktopApplicationIcons(const Environment &environment);

    [[nodiscard]] QImage icon(const QUrl &application, int pixels) const override;

private:
    /// The files of an icon of that name, the best for the size first.
    [[nodiscard]] QStringList candidates(const QString &name, int pixels) const;

    QStringList iconFolders_;
    QStringList pixmapFolders_;
};

} // namespace vantrel
