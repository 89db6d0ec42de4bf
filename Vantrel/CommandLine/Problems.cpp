#include "Vantrel/CommandLine/Problems.h"

#include "Vantrel/CommandLine/Output.h"
#include "VantrelKit/PrintableText.h"

#include <QCoreApplication>

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

} // namespace

QString problemText(const QString &browserName, const ProfileDiscoveryError &error)
{
    if (error.kind == ProfileDiscoveryError::Kind::accessDenied) {
        //: Error of the command line. First: a browser's name; second: a folder.
        return Texts::tr("%1's profiles can't be read: access to “%2” is denied. Check the folder's permissions.")
            .arg(printable(browserName), printable(error.path));
    }
    //: Error of the command line. First: a browser's name; second: a folder; third: the system's reason.
    return Texts::tr("%1's profiles can't be read: “%2”: %3.")
        .arg(printable(browserName), printable(error.path), error.reason);
}

bool reportProblems(const LoadedCatalogue &loaded, const QString &savedStatePath, Output &output)
{
    if (loaded.savedStateError) {
        //: Error of the command line. First: a file; second: what is wrong with it.
        output.message(Texts::tr("Saved profiles unreadable, going on without your order and names: %1: %2")
                           .arg(savedStatePath, loaded.savedStateError->message()));
    }
    bool failed = false;
    for (const Browser &browser : loaded.catalogue.browsers) {
        const auto result = loaded.results.constFind(browser.bundleID);
        if (result == loaded.results.constEnd() || result->has_value())
            continue;
        output.message(problemText(browser.name, result->error()));
        failed = true;
    }
    return failed;
}

} // namespace vantrel
