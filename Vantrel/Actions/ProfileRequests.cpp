#include "Vantrel/Actions/ProfileRequests.h"

#include "Vantrel/Actions/FirstDiscovery.h"
#include "Vantrel/Actions/OpenLinksInProfileIntent.h"
#include "VantrelKit/LaunchLink.h"
#include "VantrelKit/PrintableText.h"
#include "VantrelKit/WebLinks.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ProfileRequests)
};

QString subtitle(const QList<QUrl> &links)
{
    if (links.isEmpty()) {
        //: Below a profile that the desktop's search has found: what choosing it does.
        return Texts::tr("Open this browser profile");
    }
    if (links.size() == 1) {
        //: Below a profile that the desktop's search has found: what choosing it does. The placeholder is a link.
        return Texts::tr("Open %1").arg(printable(linkText(links.first())));
    }
    //: Below a profile that the desktop's search has found: what choosing it does.
    return Texts::tr("Open %n links", nullptr, static_cast<int>(links.size()));
}

ProfileAnswers::Refusal unknownProfile(const QString &profileID)
{
    //: Error for another program that asks to open a profile. The placeholder is the profile's id.
    return {ProfileAnswers::Refusal::Reason::unknownProfile,
            Texts::tr("There is no profile with the id “%1”.").arg(printable(profileID))};
}

ProfileAnswers::Refusal badLink(const QString &link)
{
    //: Error for another program that asks to open links in a profile.
    return {ProfileAnswers::Refusal::Reason::badLink,
            Texts::tr("“%1” is no link that a browser can open: it takes a whole one with http, https or file.")
                .arg(printable(link))};
}

} // namespace

ProfileRequests::ProfileRequests(Environment environment)
    : environment_(std::move(environment)),
      titles_(environment_.store)
{
}

QCoro::Task<QList<ProfileAnswers::Found>> ProfileRequests::search(QStringList terms, qsizetype limit)
{
    const SearchTerms parsed = SearchTerms::parse(terms);
    if (parsed.isEmpty())
        co_return QList<Found>();
    co_await filledStore(environment_.store, environment_.discovery);
    co_return described(search_.matches(parsed, limit));
}

QCoro::Task<QList<ProfileAnswers::Found>> ProfileRequests::found(QStringList ids)
{
    co_await filledStore(environment_.store, environment_.discovery);
    QList<ProfileSearch::Match> matches;
    for (const QString &id : std::as_const(ids)) {
        if (const auto match = ProfileSearch::Match::of(id))
            matches.append(*match);
    }
    co_return described(matches);
}

QCoro::Task<ProfileAnswers::Outcome> ProfileRequests::openFound(QString id, Activation activation)
{
    const auto match = ProfileSearch::Match::of(id);
    if (!match)
        co_return std::unexpected(unknownProfile(id));
    co_return co_await openLinks(match->profileID, match->links, std::move(activation));
}

void ProfileRequests::showList(const Activation &activation)
{
    environment_.discovery.start();
    note(activation);
    environment_.showList();
}

QCoro::Task<QList<ProfileAnswers::Listed>> ProfileRequests::list()
{
    co_await filledStore(environment_.store, environment_.discovery);
    QList<Listed> listed;
    for (const ProfileTitles::Row &row : titles_.rows()) {
        if (!row.isInstalled)
            continue;
        listed.append({.id = row.entity.id,
                       .browserBundleID = row.profile.browserBundleID,
                       .browser = row.entity.browser,
                       .family = rawValue(environment_.store.browser(row.profile)->family),
                       .name = row.profile.name,
                       .displayName = row.entity.title,
                       .title = row.entity.displayRepresentation,
                       .isPrivate = row.profile.target.isPrivate(),
                       .isHidden = row.isHidden,
                       .link = LaunchLink::forProfile(row.profile).text()});
    }
    co_return listed;
}

QCoro::Task<ProfileAnswers::Outcome> ProfileRequests::open(QString profileID, QStringList links, Activation activation)
{
    QList<QUrl> parsed;
    for (const QString &text : std::as_const(links)) {
        const auto link = openableLink(text);
        if (!link)
            co_return std::unexpected(badLink(text));
        parsed.append(*link);
    }
    co_return co_await openLinks(std::move(profileID), std::move(parsed), std::move(activation));
}

QCoro::Task<ProfileAnswers::Outcome> ProfileRequests::openLinks(QString profileID, QList<QUrl> links,
                                                                Activation activation)
{
    co_await searchedFor(profileID, titles_, environment_.discovery);
    const QList<ProfileEntity> entities = query_.entities(QStringList(profileID));
    if (entities.isEmpty())
        co_return std::unexpected(unknownProfile(profileID));
    const OpenLinksInProfileIntent intent{.links = std::move(links), .profile = entities.first()};
    // Right before the start that it is meant for: others may have begun meanwhile.
    note(activation);
    const auto performed = co_await intent.perform({environment_.store, environment_.opener});
    if (!performed)
        co_return std::unexpected(unknownProfile(profileID));
    co_return {};
}

QList<ProfileAnswers::Found> ProfileRequests::described(const QList<ProfileSearch::Match> &matches)
{
    QList<Found> found;
    found.reserve(matches.size());
    for (const ProfileSearch::Match &match : matches) {
        const ProfileTitles::Row *row = titles_.find(match.profileID);
        if (row == nullptr)
            continue;
        const ProfileIcon &icon = row->entity.avatar;
        ProfileIconCache &icons = environment_.icons;
        found.append({.id = match.id(),
                      .title = row->entity.displayRepresentation,
                      .subtitle = subtitle(match.links),
                      .fit = match.fit,
                      .icon = [&icons, icon](int pixels) { return icons.image(icon, pixels); },
                      .iconPNG = [&icons, icon](int pixels) { return icons.png(icon, pixels); }});
    }
    return found;
}

void ProfileRequests::note(const Activation &activation)
{
    environment_.activation.noteToken(activation.token);
    environment_.activation.noteStartupID(activation.startupID);
    if (activation.time != 0)
        environment_.activation.noteTime(activation.time);
}

} // namespace vantrel
