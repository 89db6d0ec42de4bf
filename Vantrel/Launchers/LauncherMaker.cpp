#include "Vantrel/Launchers/LauncherMaker.h"

#include "Vantrel/Launchers/ProfileLauncher.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(LauncherMaker)
};

} // namespace

LauncherMaker::LauncherMaker(const Environment &environment)
    : environment_(environment),
      log_(environment.log, u"Launcher"_s)
{
}

QString LauncherMaker::alertTitle()
{
    //: Title of the alert when making a launcher app fails.
    return Texts::tr("The Launcher App Wasn't Made");
}

QCoro::Task<std::optional<QString>> LauncherMaker::askForPlace(QString profileID, QString title)
{
    const SavePanel::Panel panel = environment_.writer.panel(title);
    // Without its folder the panel opens somewhere else.
    std::ignore = environment_.files.makeFolder(panel.folder);
    environment_.activationPolicy.activate();
    auto chosen = co_await environment_.panel.ask(panel);
    const bool isFolder = panel.fileName.isEmpty();
    if (chosen && isFolder)
        co_return environment_.writer.placeIn(chosen, profileID, title);
    co_return chosen;
}

QCoro::Task<LauncherMaker::Result> LauncherMaker::make(Profile profile, QString title, LauncherIcon icon)
{
    const auto place = co_await askForPlace(profile.id(), title);
    if (!place)
        co_return std::nullopt;
    const auto made = co_await environment_.writer.write(launcherOf(profile, title, std::move(icon)), *place);
    if (!made) {
        log_.error("Launcher app not made: %{public}s"_L1, QList<LogValue>(1, made.error().message));
        co_return std::unexpected(Failure{made.error().message});
    }
    log_.notice("Launcher app made"_L1);
    co_return *made;
}

} // namespace vantrel
