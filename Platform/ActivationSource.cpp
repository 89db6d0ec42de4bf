#include "Platform/ActivationSource.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace vantrel {

QProcessEnvironment ActivationSource::apply(QProcessEnvironment variables)
{
    if (const QString token = std::exchange(token_, {}); !token.isEmpty())
        variables.insert(u"XDG_ACTIVATION_TOKEN"_s, token);
    QString id = std::exchange(startupID_, {});
    if (id.isEmpty() && time_ != 0) {
        // The form of the Startup Notification Protocol: unique, and with the time of the user's act at its end.
        id = u"vantrel-%1-%2_TIME%3"_s.arg(QCoreApplication::applicationPid()).arg(++count_).arg(time_);
    }
    if (!id.isEmpty())
        variables.insert(u"DESKTOP_STARTUP_ID"_s, id);
    return variables;
}

} // namespace vantrel
