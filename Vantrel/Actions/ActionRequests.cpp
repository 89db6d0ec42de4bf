#include "Vantrel/Actions/ActionRequests.h"

#include "Vantrel/Actions/FirstDiscovery.h"
#include "Vantrel/Actions/OpenLinksInProfileIntent.h"
#include "Vantrel/Actions/SystemProfiles.h"

namespace vantrel {
namespace {

/// An intent needs nothing but the id to open a profile.
ProfileEntity entityOf(const QString &id)
{
    ProfileEntity entity;
    entity.id = id;
    return entity;
}

ActionAnswers::Outcome outcomeOf(const OpenProfileIntent::Result &result)
{
    // The profile is the only value that can be missing.
    return result ? ActionAnswers::Outcome::performed : ActionAnswers::Outcome::needsProfile;
}

} // namespace

ActionAnswers::Profiles ActionRequests::profiles(QStringList ids)
{
    co_await filledStore(environment_.store, environment_.discovery);
    co_return drawn(query_.entities(ids));
}

ActionAnswers::Profiles ActionRequests::suggestedProfiles()
{
    co_await filledStore(environment_.store, environment_.discovery);
    co_return drawn(query_.suggestedEntities());
}

ActionAnswers::Profiles ActionRequests::profilesMatching(QString text)
{
    co_await filledStore(environment_.store, environment_.discovery);
    co_return drawn(query_.entitiesMatching(text));
}

QCoro::Task<ActionAnswers::Outcome> ActionRequests::openProfile(QString id)
{
    co_await searchedFor(id, environment_.titles, environment_.discovery);
    const OpenProfileIntent intent{.target = entityOf(id)};
    co_return outcomeOf(co_await intent.perform(intentEnvironment()));
}

QCoro::Task<ActionAnswers::Outcome> ActionRequests::openLinks(QList<QUrl> links, QString profileID)
{
    co_await searchedFor(profileID, environment_.titles, environment_.discovery);
    const OpenLinksInProfileIntent intent{.links = std::move(links), .profile = entityOf(profileID)};
    co_return outcomeOf(co_await intent.perform(intentEnvironment()));
}

QList<SystemProfile> ActionRequests::drawn(const QList<ProfileEntity> &entities)
{
    QList<SystemProfile> profiles;
    profiles.reserve(entities.size());
    for (const ProfileEntity &entity : entities)
        profiles.append(systemProfile(entity, environment_.icons));
    return profiles;
}

} // namespace vantrel
