#include "Vantrel/Actions/ProfileSearch.h"

#include "VantrelKit/LaunchLink.h"

#include <QStringMatcher>

#include <algorithm>
#include <array>
#include <ranges>
#include <vector>

namespace vantrel {
namespace {

using Fit = ProfileSearch::Fit;

/// How well a row fits what was typed, its words joined again.
Fit fitOf(const ProfileTitles::Row &row, const QString &typed)
{
    if (typed.isEmpty())
        return Fit::somewhere;
    if (row.foldedName == typed || row.foldedTitle == typed)
        return Fit::wholeName;
    return row.foldedName.startsWith(typed) ? Fit::beginOfName : Fit::somewhere;
}

} // namespace

QString ProfileSearch::Match::id() const
{
    if (links.isEmpty())
        return profileID;
    const LaunchLink link{
        .browserBundleID = profileID.section(u'/', 0, 0), .profileName = {}, .profileID = profileID, .urls = links};
    return link.text();
}

std::optional<ProfileSearch::Match> ProfileSearch::Match::of(const QString &id)
{
    if (const auto link = LaunchLink::parse(id)) {
        return link->profileID ? std::optional(Match{.profileID = *link->profileID, .links = link->urls})
                               : std::nullopt;
    }
    return id.isEmpty() ? std::nullopt : std::optional(Match{.profileID = id, .links = {}});
}

QList<ProfileSearch::Match> ProfileSearch::matches(const SearchTerms &terms, qsizetype limit) const
{
    if (terms.isEmpty())
        return {};
    std::vector<QStringMatcher> matchers;
    for (const QString &word : terms.words)
        matchers.emplace_back(word);
    const QString typed = terms.words.join(u' ');
    std::array<QList<Match>, 3> byFit;
    for (const ProfileTitles::Row &row : titles_.rows()) {
        const bool fits =
            row.isInstalled && !row.isHidden && std::ranges::all_of(matchers, [&row](const QStringMatcher &matcher) {
                return matcher.indexIn(row.foldedTitle) >= 0;
            });
        if (!fits)
            continue;
        const Fit fit = fitOf(row, typed);
        if (QList<Match> &group = byFit.at(static_cast<std::size_t>(fit)); group.size() < limit)
            group.append({row.entity.id, terms.links, fit});
    }
    QList<Match> found = byFit[0] + byFit[1] + byFit[2];
    found.resize(std::min(found.size(), limit));
    return found;
}

} // namespace vantrel
