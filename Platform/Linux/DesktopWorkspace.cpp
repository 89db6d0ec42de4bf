#include "Platform/Linux/DesktopWorkspace.h"

#include "Platform/Linux/DetachedProcess.h"
#include "Platform/Linux/ExecLine.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(DesktopWorkspace)
};

std::expected<DesktopEntry, PlatformError> entryAt(const QUrl &application, DesktopEntries &entries)
{
    const QString path = application.toLocalFile();
    if (auto entry = entries.read(path).entry)
        return *std::move(entry);
    //: Error when a browser was removed or damaged since it was found. The placeholder is its desktop entry's path.
    return std::unexpected(PlatformError{
        Texts::tr("%1 is no longer a usable application entry. Check that the browser is installed.").arg(path)});
}

} // namespace

DesktopWorkspace::DesktopWorkspace(InstallationFinder finder, const QProcessEnvironment &variables,
                                   ActivationSource &activation)
    : finder_(std::move(finder)),
      variables_(environmentForChildren(variables)),
      activation_(activation)
{
}

std::optional<Application> DesktopWorkspace::applicationWithBundleIdentifier(const QString &bundleID) const
{
    const auto installation = finder_.find(bundleID);
    if (!installation)
        return std::nullopt;
    return Application{QUrl::fromLocalFile(installation->entry.path), installation->entry.name};
}

QStringList DesktopWorkspace::searchedNames(const QString &bundleID) const
{
    return InstallationFinder::entryNames(bundleID);
}

std::expected<QStringList, PlatformError> DesktopWorkspace::commandLine(const QUrl &application,
                                                                        const QStringList &arguments) const
{
    const auto entry = entryAt(application, finder_.entries());
    if (!entry)
        return std::unexpected(entry.error());
    return expandedCommandLine(*entry, arguments, finder_.environment().home);
}

QCoro::Task<std::expected<void, PlatformError>> DesktopWorkspace::openApplication(QUrl application,
                                                                                  QStringList arguments)
{
    const auto entry = entryAt(application, finder_.entries());
    if (!entry)
        co_return std::unexpected(entry.error());
    const QString &home = finder_.environment().home;
    const auto line = expandedCommandLine(*entry, arguments, home);
    if (!line)
        co_return std::unexpected(line.error());
    const bool hasFolder = QFileInfo(entry->workingDirectory).isDir();
    co_return startDetached(*line, hasFolder ? entry->workingDirectory : home, activation_.apply(variables_));
}

} // namespace vantrel
