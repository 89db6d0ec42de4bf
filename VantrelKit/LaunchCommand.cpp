#include "VantrelKit/LaunchCommand.h"

#include "VantrelKit/KnownBrowsers.h"
#include "VantrelKit/Overloaded.h"
#include "VantrelKit/WebLinks.h"

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

/// Firefox's --private-window takes a single link, so that each needs a start of its own.
QList<LaunchCommand> firefoxPrivateCommands(const QStringList &links)
{
    const QString option = u"--private-window"_s;
    if (links.isEmpty())
        return {{{option}}};
    QList<LaunchCommand> commands;
    for (const QString &link : links)
        commands.append({{option, link}});
    return commands;
}

} // namespace

QList<LaunchCommand> LaunchCommand::commands(const QString &browserBundleID, const QList<QUrl> &links,
                                             const ProfileTarget &target)
{
    QStringList texts;
    for (const QUrl &link : openableLinks(links))
        texts.append(linkText(link));

    using Commands = QList<LaunchCommand>;
    return std::visit(Overloaded{
                          [](const ProfileTarget::SafariProfile &) { return Commands(); },
                          [](const ProfileTarget::SafariPrivate &) { return Commands(); },
                          [&texts](const ProfileTarget::Chromium &profile) {
                              return Commands{{QStringList(u"--profile-directory="_s + profile.folder) + texts}};
                          },
                          [&texts, &browserBundleID](const ProfileTarget::ChromiumPrivate &) {
                              const QString option =
                                  KnownBrowsers::isEdge(browserBundleID) ? u"--inprivate"_s : u"--incognito"_s;
                              return Commands{{QStringList(option) + texts}};
                          },
                          [&texts](const ProfileTarget::Firefox &profile) {
                              return Commands{{QStringList{u"--profile"_s, profile.path} + texts}};
                          },
                          [&texts](const ProfileTarget::FirefoxPrivate &) { return firefoxPrivateCommands(texts); },
                      },
                      target.value);
}

} // namespace vantrel
