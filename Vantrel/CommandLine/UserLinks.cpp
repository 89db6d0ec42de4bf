#include "Vantrel/CommandLine/UserLinks.h"

#include "VantrelKit/Paths.h"
#include "VantrelKit/WebLinks.h"

#include <QDir>
#include <QFileInfo>

#include <optional>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

bool hasBrowserScheme(const QString &text)
{
    return !openableLinks({QUrl(text.section(u':', 0, 0) + u":/"_s)}).isEmpty() && text.contains(u':');
}

bool isUsable(const QUrl &url)
{
    return url.isValid() && !openableLinks({url}).isEmpty() && url.isLocalFile() == url.host().isEmpty();
}

/// A text without a scheme: a file's name, or a host's.
std::optional<QUrl> completed(const QString &text, const QString &workingDirectory)
{
    // Joined by hand: to Qt, a path that begins with a colon is one within the program.
    const QFileInfo file(text.startsWith(u'/') ? text : joinedPath(workingDirectory, text));
    const bool isFile = file.exists() || (text.startsWith(u'/') && !text.startsWith("//"_L1));
    const QUrl url = isFile ? QUrl::fromLocalFile(QDir::cleanPath(file.absoluteFilePath())) : QUrl::fromUserInput(text);
    return isUsable(url) && url.isLocalFile() == isFile ? std::optional(url) : std::nullopt;
}

std::optional<QUrl> parsed(const QString &text, const QString &workingDirectory)
{
    if (text.isEmpty())
        return std::nullopt;
    if (!hasBrowserScheme(text))
        return completed(text, workingDirectory);
    const QUrl url(text);
    return isUsable(url) ? std::optional(url) : std::nullopt;
}

} // namespace

UserLinks UserLinks::parse(const QStringList &texts, const QString &workingDirectory)
{
    UserLinks links;
    for (const QString &text : texts) {
        if (const auto url = parsed(text, workingDirectory))
            links.openable.append(*url);
        else
            links.rejected.append(text);
    }
    return links;
}

} // namespace vantrel
