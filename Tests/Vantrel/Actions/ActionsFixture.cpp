#include "Tests/Vantrel/Actions/ActionsFixture.h"

#include "Vantrel/InstalledBrowsers.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel::test {

ActionsFixture::ActionsFixture()
{
    install({{edge, u"Edge"_s}});
    discover(edge, {u"Default=Left Behind"_s});
    install({{chrome, u"Google Chrome"_s}, {brave, u"Brave"_s}});
    discover(chrome, {u"Default=Work"_s, u"Profile 1=Home Office"_s});
    discover(brave, {u"Default=Homework"_s});
    std::ignore = log_.takeLines();
}

void ActionsFixture::install(const QMap<QString, QString> &browsers)
{
    for (const QString &each : {chrome, brave, edge})
        workspace_.uninstall(each);
    for (auto browser = browsers.constBegin(); browser != browsers.constEnd(); ++browser)
        workspace_.install(browser.key(), browser.value());
    store_.setBrowsers(installedBrowsers(workspace_, browsers.keys()));
}

void ActionsFixture::discover(const QString &bundleID, const QStringList &profiles)
{
    QList<DiscoveredProfile> found;
    for (const QString &text : profiles)
        found.append({text.section(u'=', 1), text.section(u'=', 0, 0)});
    store_.apply({{bundleID, found}});
}

Profile ActionsFixture::profile(const QString &id) const
{
    const QList<Profile> &profiles = store_.profiles();
    const auto found = std::ranges::find(profiles, id, &Profile::id);
    EXPECT_NE(found, profiles.end()) << id.toStdString();
    return found == profiles.end() ? Profile::privateWindow(QString()) : *found;
}

QStringList ActionsFixture::started() const
{
    QStringList starts;
    for (const FakeWorkspace::Opening &opening : workspace_.openings())
        starts.append(opening.arguments.join(u' '));
    return starts;
}

QStringList shown(const QList<ProfileEntity> &entities)
{
    QStringList texts;
    for (const ProfileEntity &entity : entities)
        texts.append(entity.displayRepresentation);
    return texts;
}

} // namespace vantrel::test
