#include "Vantrel/BrowserSurvey.h"

#include "Vantrel/InstalledBrowsers.h"
#include "Vantrel/SideBySide.h"

#include <optional>
#include <vector>

namespace vantrel {
namespace {

struct Finding {
    std::optional<Browser> browser;
    ProfileReader::Result result;
};

} // namespace

BrowserSurvey BrowserSurvey::make(const Workspace &workspace, const BrowserData &data, const ProfileReader &reader,
                                  const QStringList &bundleIDs)
{
    std::vector<Finding> findings(static_cast<size_t>(bundleIDs.size()));
    sideBySide(findings.size(), [&](size_t turn) {
        // The catalogue ends with the Firefoxes. They wait for another program, and so come first.
        const size_t index = findings.size() - 1 - turn;
        Finding &finding = findings[index];
        finding.browser = installedBrowser(workspace, bundleIDs[static_cast<qsizetype>(index)]);
        if (finding.browser && finding.browser->family != BrowserFamily::safari)
            finding.result = discoverBrowser(reader, data, finding.browser->bundleID);
    });
    BrowserSurvey survey;
    for (const Finding &finding : findings) {
        if (!finding.browser)
            continue;
        survey.browsers.append(*finding.browser);
        if (finding.browser->family != BrowserFamily::safari)
            survey.results.insert(finding.browser->bundleID, finding.result);
    }
    survey.browsers = sortedForDisplay(std::move(survey.browsers));
    return survey;
}

} // namespace vantrel
