#include "Vantrel/Settings/LaunchAtLogin.h"

#include <QCoreApplication>

namespace vantrel {
namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Settings)
};

} // namespace

void LaunchAtLogin::setEnabled(bool isEnabled)
{
    const auto done = item_.setEnabled(isEnabled);
    if (done)
        return;
    //: Title of an alert. Its message is the system's.
    alert_.show(isEnabled ? Texts::tr("Vantrel Can't Be Opened at Login")
                          //: Title of an alert. Its message is the system's.
                          : Texts::tr("Vantrel Can't Be Kept from Opening at Login"),
                done.error().message);
}

} // namespace vantrel
