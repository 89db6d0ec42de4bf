#include "Vantrel/CommandLine/ListCommand.h"

#include "Vantrel/CatalogueLoader.h"
#include "Vantrel/CommandLine/OrderedJson.h"
#include "Vantrel/CommandLine/Problems.h"
#include "VantrelKit/KnownBrowsers.h"
#include "VantrelKit/LaunchLink.h"
#include "VantrelKit/PrintableText.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

QString toJsonText(const Profile &profile, const ProfileCatalogue &catalogue)
{
    const Browser &browser = *catalogue.browser(profile);
    return jsonObject({
        {"id"_L1, jsonText(profile.id())},
        {"browserBundleIdentifier"_L1, jsonText(profile.browserBundleID)},
        {"browser"_L1, jsonText(browser.name)},
        {"family"_L1, jsonText(rawValue(browser.family))},
        {"name"_L1, jsonText(profile.name)},
        {"displayName"_L1, jsonText(catalogue.displayName(profile))},
        {"private"_L1, jsonText(profile.target.isPrivate())},
        {"hidden"_L1, jsonText(catalogue.isHidden(profile))},
        {"link"_L1, jsonText(LaunchLink::forProfile(profile).text())},
    });
}

void printJson(const QList<Profile> &profiles, const ProfileCatalogue &catalogue, Output &output)
{
    QStringList elements;
    for (const Profile &profile : profiles)
        elements.append(toJsonText(profile, catalogue));
    output.line(jsonArray(elements));
}

void printTable(const QList<Profile> &profiles, const ProfileCatalogue &catalogue, Output &output)
{
    QStringList titles;
    QList<qsizetype> widths;
    for (const Profile &profile : profiles) {
        titles.append(printable(catalogue.title(profile)));
        widths.append(columns(titles.last()));
    }
    const qsizetype width = widths.isEmpty() ? 0 : *std::ranges::max_element(widths);
    for (qsizetype row = 0; row < profiles.size(); ++row) {
        const QString padding(width - widths[row], u' ');
        //: After a profile in a list: it isn't shown in the menu.
        const QString mark = catalogue.isHidden(profiles[row]) ? u"  "_s + Texts::tr("(hidden)") : QString();
        output.line(titles[row] + padding + u"  "_s + printable(profiles[row].id()) + mark);
    }
}

} // namespace

CommandSyntax ListCommand::syntax()
{
    return {
        .command = u"list"_s,
        //: Help of the command line.
        .description = Texts::tr("Lists the profiles in your order: title and id."),
        .switches =
            {
                //: Help of the command line.
                {u"json"_s, Texts::tr("Print one JSON array.")},
                //: Help of the command line.
                {u"all"_s, Texts::tr("Also the profiles that you have hidden from the menu.")},
            },
        .required = {},
        .repeated = {},
    };
}

QCoro::Task<ExitStatus> ListCommand::run(CommandArguments arguments, CommandContext &context)
{
    const LoadedCatalogue loaded = loadCatalogue(context.workspace, context.browserData, context.reader,
                                                 context.savedStatePath, KnownBrowsers::all());
    const ProfileCatalogue &catalogue = loaded.catalogue;
    QList<Profile> profiles = catalogue.openable();
    if (!arguments.has(u"all"))
        profiles.removeIf([&catalogue](const Profile &profile) { return catalogue.isHidden(profile); });
    if (arguments.has(u"json"))
        printJson(profiles, catalogue, context.output);
    else
        printTable(profiles, catalogue, context.output);
    if (catalogue.browsers.isEmpty()) {
        //: Error of the command line.
        context.output.message(
            Texts::tr("No browser Vantrel knows is installed. “vantrel doctor” tells where it looked."));
    }
    const bool failed = reportProblems(loaded, context.savedStatePath, context.output);
    co_return failed ? ExitStatus::failed : ExitStatus::done;
}

} // namespace vantrel
