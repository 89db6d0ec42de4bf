#include "Platform/Linux/LinuxAppProcess.h"

#include "Platform/Linux/DetachedProcess.h"
#include "Platform/Linux/Instance/InstanceClient.h"
#include "Platform/Linux/Instance/InstanceSocketPath.h"
#include "Platform/OwnPrograms.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(AppProcess)
};

PlatformError withoutDisplay()
{
    //: Error when the menu is wanted where nothing can be shown, as over ssh.
    return {Texts::tr("There is no display here to show the menu on.")};
}

} // namespace

LinuxAppProcess::LinuxAppProcess(QString program, const QProcessEnvironment &variables)
    : program_(std::move(program)),
      variables_(variables)
{
}

std::expected<bool, PlatformError> LinuxAppProcess::send(InstanceRequest request)
{
    request.activationToken = variables_.value(u"XDG_ACTIVATION_TOKEN"_s);
    request.startupID = variables_.value(u"DESKTOP_STARTUP_ID"_s);
    return InstanceClient(instanceSocketPath(variables_)).send(request);
}

std::expected<void, PlatformError> LinuxAppProcess::start(const InstanceRequest &request)
{
    if (!hasDisplay())
        return std::unexpected(withoutDisplay());
    return startDetached(QStringList(program_) + appArguments(request), variables_.value(u"HOME"_s), variables_);
}

PlatformError LinuxAppProcess::become()
{
    if (!hasDisplay())
        return withoutDisplay();
    return becomeProgram(program_, {});
}

bool LinuxAppProcess::hasDisplay() const
{
    // A platform that was asked for by name, as for tests, needs none.
    return !variables_.value(u"DISPLAY"_s).isEmpty() || !variables_.value(u"WAYLAND_DISPLAY"_s).isEmpty() ||
           !variables_.value(u"QT_QPA_PLATFORM"_s).isEmpty();
}

std::unique_ptr<AppProcess> AppProcess::create()
{
    return std::make_unique<LinuxAppProcess>(ownProgram(u"vantrel-app"_s), QProcessEnvironment::systemEnvironment());
}

} // namespace vantrel
