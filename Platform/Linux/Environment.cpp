#include "Platform/Linux/Environment.h"

#include "VantrelKit/Paths.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

std::optional<QString> absolutePath(const QProcessEnvironment &variables, const QString &name)
{
    const QString value = variables.value(name);
    // Joined with nothing, a path loses slashes at its end, so that folders can be told by the beginning of a path.
    return value.startsWith(u'/') ? std::optional(joinedPath(value, {})) : std::nullopt;
}

QStringList dataDirs(const QProcessEnvironment &variables)
{
    QStringList dirs;
    for (const QString &dir : variables.value(u"XDG_DATA_DIRS"_s).split(u':', Qt::SkipEmptyParts)) {
        if (dir.startsWith(u'/') && !dirs.contains(dir))
            dirs.append(dir);
    }
    if (!dirs.isEmpty())
        return dirs;
    // Flatpak's and Snap's folders are added by the session's start-up files, which cron and some remote shells pass
    // over.
    return {u"/usr/local/share"_s, u"/usr/share"_s, u"/var/lib/flatpak/exports/share"_s, u"/var/lib/snapd/desktop"_s};
}

} // namespace

Environment Environment::from(const QProcessEnvironment &variables)
{
    const QString home = absolutePath(variables, u"HOME"_s).value_or(QDir::homePath());
    return {
        .home = home,
        .configHome = absolutePath(variables, u"XDG_CONFIG_HOME"_s).value_or(joinedPath(home, u".config"_s)),
        .dataHome = absolutePath(variables, u"XDG_DATA_HOME"_s).value_or(joinedPath(home, u".local/share"_s)),
        .dataDirs = vantrel::dataDirs(variables),
        .chromeConfigHome = absolutePath(variables, u"CHROME_CONFIG_HOME"_s),
        .heliumConfigHome = absolutePath(variables, u"HELIUM_CONFIG_HOME"_s),
        .chromeUserDataDir = absolutePath(variables, u"CHROME_USER_DATA_DIR"_s),
        .legacyFirefoxHome = variables.value(u"MOZ_LEGACY_HOME"_s).startsWith(u'1'),
    };
}

} // namespace vantrel
