#include "Vantrel/CommandLine/ProfileMatcher.h"

#include "Vantrel/UnknownProfile.h"
#include "VantrelKit/KnownBrowsers.h"
#include "VantrelKit/LaunchLink.h"
#include "VantrelKit/PrintableText.h"
#include "VantrelKit/ProfileList.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

constexpr qsizetype mostCandidates = 20;
constexpr qsizetype longestQuote = 200;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

/// A text of the user's or of a link, fit to stand in a message: on one line, and shortened where nobody would read it.
QString quoted(const QString &text)
{
    return printable(text.size() <= longestQuote ? text : text.first(longestQuote) + u'…');
}

template <typename Predicate>
QList<Profile> profilesWhere(const QList<Profile> &profiles, const Predicate &predicate)
{
    QList<Profile> found;
    std::ranges::copy_if(profiles, std::back_inserter(found), predicate);
    return found;
}

QString candidateLines(const QList<Profile> &candidates, const ProfileCatalogue &catalogue)
{
    QString lines;
    for (const Profile &profile : candidates.first(std::min(candidates.size(), mostCandidates)))
        lines += u"\n  %1  %2"_s.arg(printable(catalogue.title(profile)), printable(profile.id()));
    if (candidates.size() > mostCandidates) {
        //: After a list of profiles that was cut. The placeholder is a number.
        lines += u"\n  "_s +
                 Texts::tr("… and %1 more: “vantrel list --all” shows them.").arg(candidates.size() - mostCandidates);
    }
    return lines;
}

MatchFailure ambiguous(const QString &text, const QList<Profile> &found, const ProfileCatalogue &catalogue)
{
    //: Error of the command line, before a list of profiles. The placeholder is what the user wrote.
    return {Texts::tr("More than one profile is called “%1”. Name one by its title or its id:").arg(quoted(text)) +
            candidateLines(found, catalogue)};
}

/// The profiles that a person may have meant: those whose title has the text in it, else all.
MatchFailure unknown(const QString &text, const ProfileCatalogue &catalogue)
{
    const QList<Profile> all = catalogue.openable();
    const QList<Profile> similar = profilesWhere(all, [&](const Profile &profile) {
        return !text.isEmpty() && catalogue.title(profile).contains(text, Qt::CaseInsensitive);
    });
    if (all.isEmpty()) {
        //: Error of the command line. The placeholder is what the user wrote.
        return {Texts::tr("There is no profile “%1”: no browser that Vantrel knows is installed.").arg(quoted(text))};
    }
    //: Error of the command line, before a list of profiles. The placeholder is what the user wrote.
    return {Texts::tr("There is no profile “%1”. These are there:").arg(quoted(text)) +
            candidateLines(similar.isEmpty() ? all : similar, catalogue)};
}

std::expected<Profile, MatchFailure> matchLink(const QString &text, const ProfileCatalogue &catalogue)
{
    const auto link = LaunchLink::parse(text);
    if (!link) {
        //: Error of the command line. The placeholder is a link.
        return std::unexpected(MatchFailure{Texts::tr("Not a profile link: %1").arg(quoted(text))});
    }
    if (auto profile = ProfileList::find(*link, catalogue.profiles, catalogue.customNames))
        return *std::move(profile);
    return std::unexpected(MatchFailure{unknownProfileMessage(quoted(link->profileName))});
}

} // namespace

bool isProfileLink(const QString &text)
{
    return text.startsWith("vantrel:"_L1, Qt::CaseInsensitive);
}

QStringList browsersToSearch(const QString &text)
{
    QStringList bundleIDs;
    const auto add = [&bundleIDs](const QString &bundleID) {
        if (KnownBrowsers::family(bundleID) && !bundleIDs.contains(bundleID))
            bundleIDs.append(bundleID);
    };
    if (isProfileLink(text)) {
        if (const auto link = LaunchLink::parse(text)) {
            add(link->browserBundleID);
            add(link->profileID.value_or(QString()).section(u'/', 0, 0));
        }
        return bundleIDs;
    }
    add(text.section(u'/', 0, 0));
    return bundleIDs.isEmpty() ? KnownBrowsers::all() : bundleIDs;
}

std::expected<Profile, MatchFailure> matchProfile(const QString &text, const ProfileCatalogue &catalogue)
{
    if (isProfileLink(text))
        return matchLink(text, catalogue);
    const QList<Profile> profiles = catalogue.openable();
    const auto sameID = std::ranges::find(profiles, text, &Profile::id);
    if (sameID != profiles.end())
        return *sameID;
    QList<Profile> found =
        profilesWhere(profiles, [&](const Profile &profile) { return catalogue.title(profile) == text; });
    if (found.isEmpty())
        found = profilesWhere(profiles, [&](const Profile &profile) { return catalogue.displayName(profile) == text; });
    if (found.size() == 1)
        return found.first();
    return std::unexpected(found.isEmpty() ? unknown(text, catalogue) : ambiguous(text, found, catalogue));
}

} // namespace vantrel
