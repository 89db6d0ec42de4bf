#include "Platform/Linux/Launchers/DesktopLauncherWriter.h"

#include "Platform/Linux/Launchers/DesktopCaches.h"
#include "Platform/Linux/Launchers/LauncherEntry.h"
#include "Platform/Linux/Launchers/ThemeIconFiles.h"
#include "VantrelKit/LauncherBundle.h"
#include "VantrelKit/Paths.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(DesktopLauncherWriter)
};

/// What the names of a profile's entries and icons begin with.
QString baseName(const QString &profileID)
{
    return u"vantrel-"_s + LauncherBundle::digits(profileID);
}

/// The icon that an entry of ours names; empty when there is no such entry.
QString iconOf(const QString &place)
{
    constexpr auto key = "Icon="_L1;
    QFile file(place);
    if (!QFileInfo(place).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine());
        if (line.startsWith(key))
            return line.sliced(key.size()).trimmed();
    }
    return {};
}

QStringList openingCommand(const QString &program, const LaunchLink &link)
{
    return {program, u"open"_s, u"--alert"_s, link.text()};
}

} // namespace

DesktopLauncherWriter::DesktopLauncherWriter(FileSystem &files, const QString &dataHome, QString program)
    : files_(files),
      applications_(joinedPath(dataHome, u"applications"_s)),
      theme_(joinedPath(dataHome, u"icons/hicolor"_s)),
      program_(std::move(program))
{
}

SavePanel::Panel DesktopLauncherWriter::panel(const QString &title) const
{
    return {
        //: Title of the panel in which the folder for a launcher is chosen.
        .title = Texts::tr("Create Launcher App"),
        //: Message of the panel in which the folder for a launcher is chosen. The placeholder is a profile with its
        //: browser.
        .message = Texts::tr("Open “%1” from the applications menu, the dock or the desktop. Links dropped on it open "
                             "in the profile.")
                       .arg(title),
        //: Button of the panel in which the folder for a launcher is chosen.
        .confirmButton = Texts::tr("Create"),
        .folder = applications_,
        .fileName = {},
    };
}

QString DesktopLauncherWriter::placeIn(const std::optional<QString> &folder, const QString &profileID,
                                       const QString & /*title*/) const
{
    // The user reads the name inside the entry and not the file's, which therefore can stay when the name changes.
    return joinedPath(folder.value_or(applications_), baseName(profileID) + ".desktop"_L1);
}

QCoro::Task<std::expected<QUrl, PlatformError>> DesktopLauncherWriter::write(Launcher launcher, QString place)
{
    const QString formerIcon = iconOf(place);
    const ThemeIconFiles icon(launcher.icon, baseName(launcher.profileID), place);
    if (const auto written = icon.write(files_, theme_); !written)
        co_return std::unexpected(written.error());
    if (const auto written = writeEntry(launcher, icon.name(), place); !written) {
        if (icon.name() != formerIcon)
            removeIcon(launcher.profileID, icon.name());
        co_return std::unexpected(written.error());
    }
    if (icon.name() != formerIcon)
        removeIcon(launcher.profileID, formerIcon);
    co_await refreshDesktopCaches(applications_, theme_);
    co_return QUrl::fromLocalFile(place);
}

FileSystem::Result DesktopLauncherWriter::writeEntry(const Launcher &launcher, const QString &icon,
                                                     const QString &place)
{
    LauncherEntry entry{
        .name = launcher.title,
        //: What menus and tooltips say about a launcher.
        .comment = Texts::tr("Opens this profile; links dropped on it open in it"),
        .icon = icon,
        .command = openingCommand(program_, launcher.link),
        .profileID = launcher.profileID,
    };
    if (launcher.privateWindow) {
        entry.privateWindow =
            LauncherEntry::Action{launcher.privateWindow->name, openingCommand(program_, launcher.privateWindow->link)};
    }
    const QString folder = QFileInfo(place).path();
    if (folder == applications_) {
        if (auto made = files_.makeFolder(folder); !made)
            return made;
    }
    // Elsewhere, as on the desktop, only what can be executed is taken for a launcher.
    return files_.write(place, entry.text(), FileSystem::Access::executable);
}

void DesktopLauncherWriter::removeIcon(const QString &profileID, const QString &icon)
{
    // What else an entry names is not ours.
    if (!icon.startsWith(baseName(profileID) + u'-') || icon.contains(u'/'))
        return;
    for (const QString &path : ThemeIconFiles::paths(theme_, icon))
        std::ignore = files_.remove(path);
}

QCoro::Task<std::expected<void, PlatformError>> DesktopLauncherWriter::remove(QString profileID, QString place)
{
    if (!QFileInfo(place).isFile() && !QFileInfo(place).isSymLink()) {
        //: Error when a launcher is to be removed. The placeholder is where it was looked for.
        co_return std::unexpected(PlatformError{Texts::tr("There is no launcher at %1.").arg(place)});
    }
    const QString icon = iconOf(place);
    if (const auto removed = files_.remove(place); !removed)
        co_return removed;
    removeIcon(profileID, icon);
    co_await refreshDesktopCaches(applications_, theme_);
    co_return {};
}

} // namespace vantrel
