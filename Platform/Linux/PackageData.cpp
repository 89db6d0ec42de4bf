#include "Platform/Linux/PackageData.h"

#include "Platform/ChromiumDataFolder.h"
#include "Platform/Linux/ExecLine.h"
#include "Platform/Linux/FirefoxRoots.h"
#include "VantrelKit/ChromiumDiscovery.h"
#include "VantrelKit/KnownBrowsers.h"
#include "VantrelKit/Paths.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

bool pathExists(const QString &path)
{
    return QFileInfo::exists(path);
}

/// What the entry's own command line says about the folder.
std::optional<QString> userDataDirectory(const DesktopEntry &entry)
{
    static constexpr auto option = "--user-data-dir="_L1;
    if (!entry.exec.contains(option))
        return std::nullopt;
    const QStringList words = execWords(entry.exec).value_or(QStringList());
    const auto word = std::ranges::find_if(words, [](const QString &text) { return text.startsWith(option); });
    if (word == words.end())
        return std::nullopt;
    // A percent sign is written twice there, since a single one begins a field code.
    return word->sliced(option.size()).replace("%%"_L1, "%"_L1);
}

QStringList nativeFirefoxFolders(const BrowserPackage &package, const Environment &environment)
{
    if (package.bundleID == "app.zen-browser.zen")
        return zenRoots(environment, pathExists);
    QStringList roots = firefoxRoots(environment, pathExists);
    // Ubuntu's nightly builds keep to a folder of their own.
    if (package.bundleID == "org.mozilla.nightly")
        roots.append(joinedPath(environment.home, u".mozilla/firefox-trunk"_s));
    return roots;
}

QString chromiumConfigHome(const BrowserPackage &package, const Environment &environment)
{
    const bool isHelium = package.bundleID == "net.imput.helium";
    const auto &renamed = isHelium ? environment.heliumConfigHome : environment.chromeConfigHome;
    return renamed.value_or(environment.configHome);
}

/// The folder to which those of the package's table row are relative.
QString baseFolder(const BrowserPackage &package, const Environment &environment)
{
    switch (package.packaging) {
    case Packaging::native: return chromiumConfigHome(package, environment);
    case Packaging::flatpak: return joinedPath(environment.home, u".var/app/"_s + text(package.sandboxID));
    case Packaging::snap: return joinedPath(environment.home, u"snap/"_s + text(package.sandboxID));
    }
    Q_UNREACHABLE();
}

BrowserDataFolder actualChromiumFolder(const QString &bundleID, const QStringList &candidates)
{
    const auto isUsed = [&bundleID](const QString &folder) { return holdsProfiles(bundleID, folder); };
    auto chosen = std::ranges::find_if(candidates, isUsed);
    if (chosen == candidates.end())
        chosen = std::ranges::find_if(candidates, pathExists);
    return chromiumDataFolder(bundleID, chosen == candidates.end() ? candidates.first() : *chosen);
}

QList<BrowserDataFolder> actualFirefoxFolders(const QString &bundleID, const QStringList &candidates)
{
    QStringList folders;
    for (const QString &candidate : candidates) {
        const bool isCounted = std::ranges::any_of(
            folders, [&candidate](const QString &folder) { return isSameFolder(folder, candidate); });
        if (!isCounted && holdsProfiles(bundleID, candidate))
            folders.append(candidate);
    }
    if (folders.isEmpty())
        folders.append(candidates.first());
    QList<BrowserDataFolder> result;
    for (const QString &folder : std::as_const(folders))
        result.append({folder, BrowserDataFolder::Layout::manyProfiles});
    return result;
}

} // namespace

bool isSameFolder(const QString &left, const QString &right)
{
    std::error_code ignored;
    return left == right || std::filesystem::equivalent(QFile::encodeName(left).toStdString(),
                                                        QFile::encodeName(right).toStdString(), ignored);
}

QStringList candidateDataFolders(const BrowserPackage &package, const DesktopEntry &entry,
                                 const Environment &environment)
{
    const bool isFirefox = KnownBrowsers::family(text(package.bundleID)) == BrowserFamily::firefox;
    if (package.packaging == Packaging::native && isFirefox)
        return nativeFirefoxFolders(package, environment);
    if (!isFirefox) {
        if (const auto folder = userDataDirectory(entry))
            return {*folder};
        if (package.packaging == Packaging::native && environment.chromeUserDataDir)
            return {*environment.chromeUserDataDir};
    }
    const QString base = baseFolder(package, environment);
    QStringList folders;
    for (const std::string_view folder : package.dataFolders) {
        if (!folder.empty())
            folders.append(joinedPath(base, text(folder)));
    }
    return folders;
}

bool holdsProfiles(const QString &bundleID, const QString &folder)
{
    const auto listed = listDataFolder(folder);
    if (!listed)
        return true;
    const QList<FolderEntry> entries = listed->value_or(QList<FolderEntry>());
    const auto has = [&entries](QLatin1StringView name) {
        return std::ranges::find(entries, name, &FolderEntry::name) != entries.end();
    };
    if (KnownBrowsers::family(bundleID) == BrowserFamily::firefox)
        return has("profiles.ini"_L1) || has("Profile Groups"_L1);
    return has("Preferences"_L1) || !chromiumProfileFolders(entries).isEmpty();
}

QList<BrowserDataFolder> actualDataFolders(const QString &bundleID, const QStringList &candidates)
{
    if (candidates.isEmpty())
        return {};
    if (KnownBrowsers::family(bundleID) == BrowserFamily::firefox)
        return actualFirefoxFolders(bundleID, candidates);
    // With a single candidate there is nothing to choose, and its folder needn't be read twice.
    if (candidates.size() == 1)
        return {chromiumDataFolder(bundleID, candidates.first())};
    return {actualChromiumFolder(bundleID, candidates)};
}

} // namespace vantrel
