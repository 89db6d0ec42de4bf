#include "Platform/Linux/LinuxAppProcess.h"

#include "Platform/Linux/DetachedProcess.h"
#include "Platform/Linux/Instance/InstanceClient.h"
#include "Platform/Linux/Instance/InstanceSocketPath.h"
#include "VantrelKit/Paths.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

#include <array>
#include <cerrno>

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

QStringList argumentsFor(const InstanceRequest &request)
{
    switch (request.kind) {
    case InstanceRequest::Kind::activate: return {};
    case InstanceRequest::Kind::open: return request.links;
    case InstanceRequest::Kind::action: return {u"--action"_s, request.action};
    }
    Q_UNREACHABLE();
}

/// Where it is installed, seen from the command's folder, and beside the command where both were built.
QString appProgram()
{
    const QString folder = QCoreApplication::applicationDirPath();
    const QString built = joinedPath(folder, u"vantrel-app"_s);
    return QFileInfo::exists(built) ? built
                                    : joinedPath(folder, QStringLiteral(VANTREL_LIBEXEC_FROM_BIN "/vantrel-app"));
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
    return startDetached(QStringList(program_) + argumentsFor(request), variables_.value(u"HOME"_s), variables_);
}

PlatformError LinuxAppProcess::become()
{
    if (!hasDisplay())
        return withoutDisplay();
    const QByteArray program = QFile::encodeName(program_);
    std::array<const char *, 2> arguments{program.constData(), nullptr};
    // execv takes its arguments as if it could change them, and doesn't.
    execv(program.constData(), const_cast<char *const *>(arguments.data()));
    //: Error when the program that shows the menu can't be started. First: its path; second: the system's reason.
    return {Texts::tr("%1 can't be started: %2.").arg(program_, qt_error_string(errno))};
}

bool LinuxAppProcess::hasDisplay() const
{
    // A platform that was asked for by name, as for tests, needs none.
    return !variables_.value(u"DISPLAY"_s).isEmpty() || !variables_.value(u"WAYLAND_DISPLAY"_s).isEmpty() ||
           !variables_.value(u"QT_QPA_PLATFORM"_s).isEmpty();
}

std::unique_ptr<AppProcess> AppProcess::create()
{
    return std::make_unique<LinuxAppProcess>(appProgram(), QProcessEnvironment::systemEnvironment());
}

} // namespace vantrel
