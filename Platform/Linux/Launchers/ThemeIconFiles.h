#pragma once

#include "Platform/FileSystem.h"

#include <QImage>
#include <QStringList>

#include <functional>

namespace vantrel {

/// The pictures of one icon in the sizes of an icon theme: the files that hold them, below the theme's folder.
class ThemeIconFiles {
public:
    /// The paths in the theme's folder of all sizes of an icon.
    [[nodiscard]] static QStringList paths(const QString &themeFolder, const QString &iconName);

    /// Draws all sizes. `place` is in the name together with what the pictures show, for desktops keep in memory what
    /// they once found by a name.
    ThemeIconFiles(const std::function<QImage(int pixels)> &draw, const QString &nameStart, const QString &place);

    /// `nameStart`, a hyphen, and eight hexadecimal digits.
    [[nodiscard]] const QString &name() const { return name_; }

    /// Writes the files. When that fails, those that were not there before are removed again.
    [[nodiscard]] FileSystem::Result write(FileSystem &files, const QString &themeFolder) const;

private:
    /// As PNG, in the order of the sizes.
    QList<QByteArray> pictures_;
    QString name_;
};

} // namespace vantrel
