#include "Platform/Linux/FirefoxRoots.h"

#include "VantrelKit/Paths.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// The folders of one browser below the home folder and below the configuration folder.
QStringList roots(const Environment &environment, const QString &legacy, const QString &modern, bool usesLegacy)
{
    const QString legacyRoot = joinedPath(environment.home, legacy);
    const QString modernRoot = joinedPath(environment.configHome, modern);
    // A login shell's $XDG_CONFIG_HOME may differ from that of the session in which the browser ran.
    const QString usualRoot = joinedPath(joinedPath(environment.home, u".config"_s), modern);
    QStringList paths =
        usesLegacy ? QStringList{legacyRoot, modernRoot, usualRoot} : QStringList{modernRoot, usualRoot, legacyRoot};
    paths.removeDuplicates();
    return paths;
}

bool existsBelowHome(const Environment &environment, const PathExists &exists, const QString &folder)
{
    return exists(joinedPath(environment.home, folder));
}

} // namespace

QStringList firefoxRoots(const Environment &environment, const PathExists &exists)
{
    const QString legacy = u".mozilla/firefox"_s;
    // "mozilla" without the dot is no slip: Firefox looks for it, too.
    const bool usesLegacy = environment.legacyFirefoxHome || existsBelowHome(environment, exists, legacy) ||
                            existsBelowHome(environment, exists, u"mozilla"_s);
    return roots(environment, legacy, u"mozilla/firefox"_s, usesLegacy);
}

QStringList zenRoots(const Environment &environment, const PathExists &exists)
{
    const QString legacy = u".zen"_s;
    const bool usesLegacy = environment.legacyFirefoxHome || existsBelowHome(environment, exists, legacy) ||
                            existsBelowHome(environment, exists, u"zen"_s);
    return roots(environment, legacy, u"zen"_s, usesLegacy);
}

} // namespace vantrel
