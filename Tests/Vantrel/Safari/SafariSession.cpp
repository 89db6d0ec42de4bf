#include "Tests/Vantrel/Safari/SafariSession.h"

#include "Platform/ProgramScriptRunner.h"
#include "Tests/Fakes/FakePermissions.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel::test {

SafariSession::SafariSession()
{
    const QString folder = QStringLiteral(VANTREL_SAFARI_LANGUAGES);
    setLanguages(QUrl::fromLocalFile(folder + u"/App/"_s), QUrl::fromLocalFile(folder + u"/Framework/"_s));
    setScene(Scene());
    workspace_.install(test::safari, u"Safari"_s);
}

void SafariSession::setLanguages(const QUrl &appResources, const QUrl &frameworkResources)
{
    languages_.emplace(appResources, frameworkResources);
}

void SafariSession::start()
{
    if (automation_)
        return;
    const QString program = folder_.writeScript(u"osascript"_s, "exec '" STAND_IN_OSASCRIPT "' '" +
                                                                    scenePath_.toLocal8Bit() + "' \"$@\"\n");
    ports_ = {std::make_unique<ProgramScriptRunner>(program, limit_), std::make_unique<SceneBridge>(scenePath_),
              std::make_unique<FakeAccessibilityTrust>(), std::make_unique<FakeAutomationPermission>()};
    automation_.emplace(Safari::Automation::Environment{ports_, running_, *languages_, clock_, log_});
    discovery_.emplace(store_, DiscoveryRuns::Environment{workspace_, data_, running_, nullptr, &automation_->search()},
                       ProfileReader());
    discovery_->start();
    opener_.emplace(store_, ProfileOpener::Environment{workspace_, alert_, log_, &automation_->windows()});
}

QStringList SafariSession::takeScripts() const
{
    Scene scene = this->scene();
    const QStringList scripts = std::exchange(scene.scripts, {});
    setScene(scene);
    return scripts;
}

QStringList SafariSession::find()
{
    start();
    discovery_->searchSafari(test::safari);
    EXPECT_TRUE(store_.searching().contains(test::safari));
    EXPECT_TRUE(waitUntil([this] { return store_.searching().isEmpty(); })) << "The search didn't end.";
    QStringList names;
    for (const Profile &profile : store_.profilesOf(test::safari)) {
        if (!profile.target.isPrivate())
            names.append(profile.name);
    }
    return names;
}

void SafariSession::open(const QString &name, const QStringList &links)
{
    start();
    const QList<Profile> profiles = store_.profilesOf(test::safari);
    const auto known = std::ranges::find(profiles, name, &Profile::name);
    open(known == profiles.end() ? Profile{test::safari, name, ProfileTarget::safariProfile(name, -1)} : *known, links);
}

void SafariSession::openPrivate(const QStringList &links)
{
    start();
    open(Profile::privateWindow(test::safari), links);
}

void SafariSession::open(const Profile &profile, const QStringList &links)
{
    auto opening = opener_->open(profile, QUrl::fromStringList(links), ProfileOpener::Source::menu);
    EXPECT_TRUE(waitUntil([&opening] { return opening.isReady(); })) << "The opening didn't end.";
}

} // namespace vantrel::test
