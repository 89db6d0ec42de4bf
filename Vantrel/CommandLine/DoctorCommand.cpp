#include "Vantrel/CommandLine/DoctorCommand.h"

#include "Vantrel/BrowserSurvey.h"
#include "Vantrel/CommandLine/OrderedJson.h"
#include "Vantrel/CommandLine/Problems.h"
#include "VantrelKit/KnownBrowsers.h"
#include "VantrelKit/PrintableText.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

/// All there is to say about one known browser.
struct Finding {
    QString bundleID;
    QStringList searchedNames;
    std::optional<Browser> browser = std::nullopt;
    QStringList dataFolders = {};
    qsizetype profiles = 0;
    std::optional<ProfileDiscoveryError> error = std::nullopt;
};

Finding examine(const QString &bundleID, const QList<Browser> &browsers, const DiscoveryResults &results,
                const CommandContext &context)
{
    Finding finding{bundleID, context.workspace.searchedNames(bundleID)};
    const auto browser = std::ranges::find(browsers, bundleID, &Browser::bundleID);
    if (browser == browsers.end())
        return finding;
    finding.browser = *browser;
    for (const BrowserDataFolder &folder : context.browserData.dataFolders(bundleID))
        finding.dataFolders.append(folder.path);
    const auto result = results.constFind(bundleID);
    if (result == results.constEnd())
        return finding;
    if (result->has_value())
        finding.profiles = (*result)->size();
    else
        finding.error = result->error();
    return finding;
}

QString errorJson(const ProfileDiscoveryError &error)
{
    const bool isDenied = error.kind == ProfileDiscoveryError::Kind::accessDenied;
    return jsonObject({
        {"kind"_L1, jsonText(isDenied ? u"accessDenied"_s : u"readFailed"_s)},
        {"path"_L1, jsonText(error.path)},
        {"reason"_L1, jsonText(error.reason)},
    });
}

QString toJsonText(const Finding &finding)
{
    const auto &browser = finding.browser;
    const QString null = jsonText(QJsonValue());
    return jsonObject({
        {"browserBundleIdentifier"_L1, jsonText(finding.bundleID)},
        {"browser"_L1, jsonText(browser ? browser->name : finding.bundleID)},
        {"installed"_L1, jsonText(browser.has_value())},
        {"application"_L1, browser ? jsonText(browser->url.toLocalFile()) : null},
        {"dataFolder"_L1, finding.dataFolders.isEmpty() ? null : jsonText(finding.dataFolders.first())},
        {"profiles"_L1, jsonText(finding.profiles)},
        {"error"_L1, finding.error ? errorJson(*finding.error) : null},
    });
}

void printInstalled(const Finding &finding, const Browser &browser, Output &output)
{
    output.line(printable(browser.name) + u"  "_s + finding.bundleID);
    //: Line of a report on a browser. The placeholder is a file.
    output.line(u"  "_s + Texts::tr("application  %1").arg(printable(browser.url.toLocalFile())));
    for (const QString &folder : finding.dataFolders) {
        //: Line of a report on a browser. The placeholder is a folder.
        output.line(u"  "_s + Texts::tr("data folder  %1").arg(printable(folder)));
    }
    if (finding.error) {
        //: Line of a report on a browser. The placeholder is an error.
        output.line(u"  "_s + Texts::tr("problem      %1").arg(problemText(browser.name, *finding.error)));
    } else {
        //: Line of a report on a browser. The placeholder is a number.
        output.line(u"  "_s + Texts::tr("profiles     %1").arg(finding.profiles));
    }
    output.line({});
}

void printMissing(const Finding &finding, Output &output)
{
    const QString names = finding.searchedNames.isEmpty()
                              //: In place of the files that were looked for, in a report on a browser.
                              ? Texts::tr("does not exist for this system")
                              : finding.searchedNames.join(u", "_s);
    output.line(u"  "_s + finding.bundleID + u"  "_s + names);
}

void printReport(const QList<Finding> &findings, Output &output)
{
    for (const Finding &finding : findings) {
        if (finding.browser)
            printInstalled(finding, *finding.browser, output);
    }
    //: Headline of a list of browsers with the files that were looked for.
    output.line(Texts::tr("Not installed, and what was looked for:"));
    for (const Finding &finding : findings) {
        if (!finding.browser)
            printMissing(finding, output);
    }
}

} // namespace

CommandSyntax DoctorCommand::syntax()
{
    return {
        .command = u"doctor"_s,
        //: Help of the command line.
        .description =
            Texts::tr("Tells of each browser that Vantrel knows where it was looked for, where its data is, how\n"
                      "many profiles it has, and what failed."),
        //: Help of the command line.
        .switches = {{u"json"_s, Texts::tr("Print one JSON array.")}},
        .required = {},
        .repeated = {},
    };
}

QCoro::Task<ExitStatus> DoctorCommand::run(CommandArguments arguments, CommandContext &context)
{
    const auto [browsers, results] =
        BrowserSurvey::make(context.workspace, context.browserData, context.reader, KnownBrowsers::all());
    QList<Finding> findings;
    for (const QString &bundleID : KnownBrowsers::all())
        findings.append(examine(bundleID, browsers, results, context));

    if (arguments.has(u"json")) {
        QStringList elements;
        for (const Finding &finding : std::as_const(findings))
            elements.append(toJsonText(finding));
        context.output.line(jsonArray(elements));
    } else {
        printReport(findings, context.output);
    }
    ExitStatus status = ExitStatus::done;
    for (const Finding &finding : std::as_const(findings)) {
        if (!finding.error || !finding.browser)
            continue;
        context.output.message(problemText(finding.browser->name, *finding.error));
        status = ExitStatus::failed;
    }
    co_return status;
}

} // namespace vantrel
