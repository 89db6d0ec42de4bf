#include "Platform/Linux/InstallationFinder.h"

#include "Platform/Linux/PackageData.h"
#include "VantrelKit/Paths.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// An entry's name alone doesn't tell a Flatpak from a native package.
bool belongsTo(const BrowserPackage &package, const DesktopEntry &entry)
{
    switch (package.packaging) {
    case Packaging::native: return entry.flatpakID.isEmpty() && entry.snapName.isEmpty();
    case Packaging::flatpak: return entry.flatpakID == text(package.sandboxID);
    case Packaging::snap: return entry.flatpakID.isEmpty();
    }
    Q_UNREACHABLE();
}

std::optional<DesktopEntry> entryOf(const BrowserPackage &package, const QStringList &folders, DesktopEntries &entries)
{
    for (const std::string_view name : package.entries) {
        if (name.empty())
            continue;
        // In every folder: a Flatpak's entry in a weightier one doesn't make the native browser go away.
        for (const QString &folder : folders) {
            const QString path = joinedPath(folder, text(name));
            if (!QFileInfo::exists(path))
                continue;
            DesktopEntryFile file = entries.read(path);
            if (file.isHidden)
                break;
            if (file.entry && belongsTo(package, *file.entry))
                return std::move(file.entry);
        }
    }
    return std::nullopt;
}

} // namespace

QStringList InstallationFinder::applicationFolders() const
{
    QStringList folders{joinedPath(environment_.dataHome, u"applications"_s),
                        joinedPath(environment_.dataHome, u"flatpak/exports/share/applications"_s)};
    for (const QString &dir : environment_.dataDirs)
        folders.append(joinedPath(dir, u"applications"_s));
    folders.removeDuplicates();
    return folders;
}

bool InstallationFinder::yields(const Installation &installation) const
{
    if (installation.package->yieldsTo.empty())
        return false;
    const auto other = find(text(installation.package->yieldsTo));
    return other && isSameFolder(other->dataFolders.first().path, installation.dataFolders.first().path);
}

std::optional<Installation> InstallationFinder::find(const QString &bundleID) const
{
    const QStringList folders = applicationFolders();
    QList<Installation> installations;
    for (const BrowserPackage *package : BrowserPackage::ofBrowser(bundleID)) {
        auto entry = entryOf(*package, folders, *entries_);
        if (!entry)
            continue;
        const QStringList candidates = candidateDataFolders(*package, *entry, environment_);
        const Installation installation{package, *std::move(entry), actualDataFolders(bundleID, candidates)};
        if (!yields(installation))
            installations.append(installation);
    }
    return installations.isEmpty() ? std::nullopt : std::optional(preferred(installations));
}

QStringList InstallationFinder::entryNames(const QString &bundleID)
{
    QStringList names;
    for (const BrowserPackage *package : BrowserPackage::ofBrowser(bundleID)) {
        for (const std::string_view name : package->entries) {
            if (!name.empty() && !names.contains(text(name)))
                names.append(text(name));
        }
    }
    return names;
}

} // namespace vantrel
