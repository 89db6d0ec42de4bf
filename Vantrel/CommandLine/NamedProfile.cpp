#include "Vantrel/CommandLine/NamedProfile.h"

#include "Vantrel/CommandLine/Problems.h"
#include "Vantrel/CommandLine/ProfileMatcher.h"
#include "Vantrel/CommandLine/UserLinks.h"
#include "VantrelKit/KnownBrowsers.h"
#include "VantrelKit/LaunchLink.h"
#include "VantrelKit/PrintableText.h"

#include <QCoreApplication>

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

LoadedCatalogue load(const QStringList &bundleIDs, const CommandContext &context)
{
    return loadCatalogue(context.workspace, context.browserData, context.reader, context.savedStatePath, bundleIDs);
}

struct Found {
    LoadedCatalogue loaded;
    std::expected<Profile, MatchFailure> profile;
};

Found match(const QString &text, const CommandContext &context)
{
    const QStringList searched = browsersToSearch(text);
    LoadedCatalogue loaded = load(searched, context);
    auto profile = matchProfile(text, loaded.catalogue);
    if (!profile && !isProfileLink(text) && searched.size() < KnownBrowsers::all().size()) {
        // What looked like an id was none of that browser's: it may be a name, and else all candidates are to be shown.
        loaded = load(KnownBrowsers::all(), context);
        profile = matchProfile(text, loaded.catalogue);
    }
    return {std::move(loaded), std::move(profile)};
}

QList<QUrl> linksOf(const QStringList &words, const CommandContext &context)
{
    QList<QUrl> links;
    if (isProfileLink(words.first()))
        links = LaunchLink::parse(words.first()).value_or(LaunchLink()).urls;
    const UserLinks given = UserLinks::parse(words.sliced(1), context.workingDirectory);
    for (const QString &rejected : given.rejected) {
        //: Note of the command line. The placeholder is what the user gave as a web link.
        context.output.message(
            Texts::tr("Left out “%1”: only http, https and file links can be opened.").arg(printable(rejected)));
    }
    return links + given.openable;
}

} // namespace

std::expected<NamedProfile, ExitStatus> NamedProfile::find(const QStringList &words, const CommandContext &context)
{
    const Found found = match(words.first(), context);
    if (!found.profile) {
        reportProblems(found.loaded, context.savedStatePath, context.output);
        context.output.message(found.profile.error().message);
        return std::unexpected(ExitStatus::failed);
    }
    const Browser *browser = found.loaded.catalogue.browser(*found.profile);
    if (!browser) {
        //: Error when a profile's browser was removed.
        context.output.message(Texts::tr("The browser of this profile isn't installed."));
        return std::unexpected(ExitStatus::failed);
    }
    return NamedProfile{*found.profile, *browser, found.loaded.catalogue.displayName(*found.profile),
                        linksOf(words, context)};
}

CommandSyntax::Word NamedProfile::syntax()
{
    //: Help of the command line: how a profile may be named.
    return {QStringLiteral("PROFILE"),
            Texts::tr("An id, a title or a link as “vantrel list” shows them, or a name that only one has.")};
}

} // namespace vantrel
