#include "Platform/Linux/Launchers/DesktopCaches.h"

#include "Platform/FinishedProcess.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <fcntl.h>
#include <sys/stat.h>

#include <tuple>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// A failure costs nothing but time.
QCoro::Task<> runIfThere(QString program, QStringList arguments)
{
    const QString path = QStandardPaths::findExecutable(program);
    if (!path.isEmpty())
        std::ignore = co_await runToEnd(path, arguments);
}

} // namespace

QCoro::Task<> refreshDesktopCaches(QString applicationsFolder, QString themeFolder)
{
    // By this running programs see that there are new icons.
    utimensat(AT_FDCWD, QFile::encodeName(themeFolder).constData(), nullptr, 0);
    // Only caches that are there can be wrong.
    if (QFileInfo::exists(applicationsFolder + "/mimeinfo.cache"_L1)) {
        const QStringList arguments{u"--quiet"_s, applicationsFolder};
        co_await runIfThere(u"update-desktop-database"_s, arguments);
    }
    if (QFileInfo::exists(themeFolder + "/icon-theme.cache"_L1)) {
        const QStringList arguments{u"--quiet"_s, u"--force"_s, u"--ignore-theme-index"_s, themeFolder};
        co_await runIfThere(u"gtk-update-icon-cache"_s, arguments);
    }
}

} // namespace vantrel
