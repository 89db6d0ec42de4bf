#include "Vantrel/Launchers/LauncherTask.h"

#include "Vantrel/CommandLine/LauncherCommand.h"
#include "Vantrel/CommandLine/NamedProfile.h"
#include "Vantrel/Launchers/ProfileLauncher.h"
#include "VantrelKit/Paths.h"
#include "VantrelKit/PrintableText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

ExitStatus failed(const QString &message, CommandContext &context)
{
    context.output.message(message);
    return ExitStatus::failed;
}

/// The id that a text is, or that a link names, whether there is such a profile or not.
QString literalID(const QString &name)
{
    const auto link = LaunchLink::parse(name);
    return link ? link->profileID.value_or(QString()) : name;
}

} // namespace

QCoro::Task<ExitStatus> LauncherTask::run(CommandArguments arguments, CommandContext &context) const
{
    Folder folder = arguments.value(QString(LauncherCommand::outputOption));
    if (folder) {
        // Joined by hand: to Qt, a path that begins with a colon is one within the program.
        const QString path =
            QDir::cleanPath(folder->startsWith(u'/') ? *folder : joinedPath(context.workingDirectory, *folder));
        if (folder->isEmpty() || !QFileInfo(path).isDir()) {
            //: Error of the command line. The placeholder is what the user wrote.
            co_return failed(Texts::tr("There is no folder “%1”.").arg(printable(*folder)), context);
        }
        folder = path;
    }
    const QString &name = arguments.words.first();
    const bool removes = arguments.has(QString(LauncherCommand::removeSwitch));
    auto task = removes ? remove(name, folder, context) : make(name, folder, context);
    co_return co_await std::move(task);
}

QCoro::Task<ExitStatus> LauncherTask::make(QString name, Folder folder, CommandContext &context) const
{
    const auto named = NamedProfile::find({name}, context);
    if (!named)
        co_return named.error();
    const QString title = displayTitle(named->profile, {named->browser}, named->displayName);
    const auto browserIcon = [this, url = named->browser.url](int pixels) { return icons.icon(url, pixels); };
    const LauncherIcon icon{browserIcon, ProfileIcon::of(named->profile, named->displayName)};
    const QString place = writer.placeIn(folder, named->profile.id(), title);
    const auto made = co_await writer.write(launcherOf(named->profile, title, icon), place);
    if (!made)
        co_return failed(made.error().message, context);
    context.output.line(made->toLocalFile());
    co_return ExitStatus::done;
}

QCoro::Task<ExitStatus> LauncherTask::remove(QString name, Folder folder, CommandContext &context) const
{
    // The launcher of a profile that is gone is the first that somebody wants to be rid of.
    const QString id = literalID(name);
    const auto removed = co_await writer.remove(id, writer.placeIn(folder, id, {}));
    if (removed)
        co_return ExitStatus::done;
    const auto named = NamedProfile::find({name}, context);
    if (!named)
        co_return named.error();
    const QString title = displayTitle(named->profile, {named->browser}, named->displayName);
    const QString found = named->profile.id();
    const auto second = co_await writer.remove(found, writer.placeIn(folder, found, title));
    co_return second ? ExitStatus::done : failed(second.error().message, context);
}

} // namespace vantrel
