#include "Vantrel/CommandLine/UserLinks.h"

#include "VantrelKit/WebLinks.h"

namespace vantrel {
namespace {

QUrl parsed(const QString &text, const QString &workingDirectory)
{
    QUrl exact(text);
    if (exact.isValid() && !openableLinks({exact}).isEmpty())
        return exact;
    return QUrl::fromUserInput(text, workingDirectory);
}

} // namespace

UserLinks UserLinks::parse(const QStringList &texts, const QString &workingDirectory)
{
    UserLinks links;
    for (const QString &text : texts) {
        const QUrl url = parsed(text, workingDirectory);
        if (url.isValid() && !openableLinks({url}).isEmpty())
            links.openable.append(url);
        else
            links.rejected.append(text);
    }
    return links;
}

} // namespace vantrel
