#include "Platform/ProcessMemory.h"
#include "Vantrel/Interface/VantrelApp.h"
#include "Vantrel/Translations/Translations.h"

#include <QApplication>
#include <QProcessEnvironment>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace vantrel;

namespace {

/// `--action NAME` asks for an action, all else are links.
InstanceRequest requestOf(const QStringList &arguments)
{
    const QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    InstanceRequest request;
    if (arguments.size() == 2 && arguments.first() == "--action"_L1) {
        request.kind = InstanceRequest::Kind::action;
        request.action = arguments.last();
    } else if (!arguments.isEmpty()) {
        request.kind = InstanceRequest::Kind::open;
        request.links = arguments;
    }
    request.activationToken = variables.value(u"XDG_ACTIVATION_TOKEN"_s);
    request.startupID = variables.value(u"DESKTOP_STARTUP_ID"_s);
    return request;
}

} // namespace

int main(int argc, char *argv[])
{
    ProcessMemory::keepSmall();
    // Before the application: Qt takes the variables for itself.
    Platform platform = Platform::create();
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments.append(QString::fromLocal8Bit(argv[index]));
    const InstanceRequest first = requestOf(arguments);

    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Vantrel"_s);
    QApplication::setApplicationVersion(QStringLiteral(VANTREL_VERSION));
    QApplication::setDesktopFileName(u"app.kestrune.Vantrel"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    Translations translations;
    translations.install(Translations::userLanguages());
    QApplication::setLayoutDirection(translations.layoutDirection());

    DesktopPlatform desktop = DesktopPlatform::create(platform);
    VantrelApp app(platform, desktop, QStringLiteral(VANTREL_BUILD));
    if (QGuiApplication::platformName() == "xcb"_L1)
        application.installEventFilter(&app);
    const auto role = app.start(first);
    if (!role) {
        QTextStream(stderr) << "vantrel: " << role.error().message << Qt::endl;
        return 1;
    }
    return *role == ApplicationInstance::Role::only ? QApplication::exec() : 0;
}
