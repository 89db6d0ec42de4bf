#pragma once

#include <QCoroTask>
#include <QString>

namespace vantrel {

/// Tells desktops that entries or icons have changed: brings caches up to date that are there, where the program for it
/// is. Desktops without a cache find out by themselves.
[[nodiscard]] QCoro::Task<> refreshDesktopCaches(QString applicationsFolder, QString themeFolder);

} // namespace vantrel
