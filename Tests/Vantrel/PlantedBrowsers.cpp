#include "Tests/Vantrel/PlantedBrowsers.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace vantrel::test {

QString PlantedBrowsers::plantChromium(const QString &bundleID, const QString &name, const Profiles &profiles)
{
    QJsonObject cache;
    for (const auto &[profileFolder, profileName] : profiles) {
        folder.makeFolder(bundleID + u'/' + profileFolder);
        cache.insert(profileFolder, QJsonObject{{u"name"_s, profileName}});
    }
    const QJsonObject localState{{u"profile"_s, QJsonObject{{u"info_cache"_s, cache}}}};
    folder.write(bundleID + "/Local State"_L1, QJsonDocument(localState).toJson());
    workspace.install(bundleID, name);
    data.setFolder(bundleID, folder.path(bundleID));
    return folder.path(bundleID);
}

QString PlantedBrowsers::plantFirefox(const QString &bundleID, const QString &name, const Profiles &profiles)
{
    folder.write(bundleID + "/profiles.ini"_L1, profilesIni(profiles));
    workspace.install(bundleID, name);
    data.setFolder(bundleID, folder.path(bundleID));
    return folder.path(bundleID);
}

QString PlantedBrowsers::plantUnreadable(const QString &bundleID, const QString &name)
{
    workspace.install(bundleID, name);
    data.setFolder(bundleID, folder.write(bundleID));
    return folder.path(bundleID);
}

QByteArray profilesIni(const PlantedBrowsers::Profiles &profiles)
{
    QString text;
    for (const auto &[path, name] : profiles) {
        const bool isRelative = !path.startsWith(u'/');
        text += u"[Profile]\nName=%1\nIsRelative=%2\nPath=%3\n\n"_s.arg(name, isRelative ? u"1"_s : u"0"_s, path);
    }
    return text.toUtf8();
}

} // namespace vantrel::test
